// Typed lists: the parser, what is refused, which elements a list marks.
#include "model/struttura.h"
#include "model/tabelle_cond.h"
#include "selection/schede_sel.h"
#include "selection/selezione.h"
#include "sostegno/Banco.h"
#include "startup/basCommon_cond.h"
#include "ui/controlli/FormTelva.h"
#include <map>
#include <random>
#include <sstream>

namespace telva::prove {
void Recita(std::vector<Messaggio> &messaggi, const std::string &copione); // puntatore_prova.cpp

TEST_F(Banco, LetturaDellaLista) {
    std::istringstream casi(R"(=;3,7,12=3 7 12 ;5-8=5 6 7 8 ;1,4-6,9=1 4 5 6 9 ;8-5=;7-=;7-,3=3 ;
-3=0 1 2 3 ;-=0 ;1-3-5=3 4 5 ;2,,4=2 0 4 ;2,=2 0 ;abc=0 ; 12 =12 ;1 2=12 ;2.9=2 ;12x,3=12 3 ;
3,1-3=3 1 2 3 ;1,-1=1 0 1 ;32767=32767 ;32768=L;1-32768=L;99999-1=L;3,1e9=L;0-100=T;1-32767=T)");
    std::vector<std::int16_t> letti;
    for (std::string caso; std::getline(casi >> std::ws, caso, ';');) {
        const std::string testo = caso.substr(0, caso.find('='));
        const EsitoLista esito = LeggiLista(testo, kCapacitaSchede, letti);
        std::string avuto = esito == EsitoLista::Troppi        ? "T"
                            : esito == EsitoLista::FuoriLimiti ? "L"
                                                               : "";
        if (avuto.empty())
            for (const int n : letti) avuto += std::to_string(n) + " ";
        EXPECT_EQ(avuto, caso.substr(caso.find('=') + 1)) << testo;
    }
    EXPECT_EQ(LeggiLista("1-100", kCapacitaSchede, letti), EsitoLista::Riuscita);
    EXPECT_EQ(LeggiLista("1-20000", kCapacitaNomi, letti), EsitoLista::Riuscita);
    EXPECT_EQ(LeggiLista("0-20000", kCapacitaNomi, letti), EsitoLista::Troppi);
}

TEST_F(Banco, RispostaPerProprietaETipo) {
    Apri(Telaio()); // by kind: refused with the message of a number, or run (18: too many numbers)
    const std::string copione = R"(Materiale "Seleziona_per_materiale k0 = !I3 k1 =1-101 !E18 k2
        =1-101 !E18 k3 =1-101 !E18 k4 =1-101 !E18 = ! Nome "Seleziona_per_nome_elemento =1-20001
        !E18 SchSezione "Seleziona_per_sezione k0 = !I7 k1 =1-101 !E18 k2 = !I11 k3 =1-101 !E18 k4
        =1-101 ! SchSpessore "Seleziona_per_spessore k0 = !I8 k1 = !I16 k2 =1-101 !E18 k3 = !I20 k4
        =1-101 ! SchOrientamento "Seleziona_per_orientamento k0 = !I10 k1 =1-101 !E18 k2 = !I13 k3
        =1-101 !E18 k4 =1-101 ! SchSvincolo "Seleziona_per_svincolo k0 = !I9 k1 =1-101 !E18 k2 =
        !I12 k3 = !I21 k4 =1-101 ! SchVincolo "Seleziona_per_vincolo k1 = !I15 k2 = !I14 k3 = !I22
        k4 =1-101 ! k0 =1-101 !E18 #0900000 k1 Aggiungi Nome =2,5-6 =1-20001 >2,5-6 !E18 =1,32768
        !E_Numero_fuori_dai_limiti_ammessi_(da_-32768_a_32767)_ >2,5-6 27 =9 >2,5-6 !)";
    Recita(messaggi, copione);
}

// One number of the list after the other against every element, as it is told.
TEST_F(Banco, SegnaComeUnaPassataPerNumero) {
    constexpr int kNumero = 12;
    std::mt19937 caso(11);
    const auto tira = [&](unsigned n) { return static_cast<std::int16_t>(caso() % n); };
    std::int16_t *const flag[] = {SelNodo.Dati(), SelAsta.Dati(), SelGuscio.Dati(),
                                  SelElCont.Dati(), SelGuscio.Dati()};
    std::int16_t *const attivi[] = {AttNodo.Dati(), AttAsta.Dati(), AttGuscio.Dati()};
    NumNodi = NumAste = NumGusci = NumElCont = kNumero;
    NumSezioni = NumSpessori = 3; // card 4 has no material
    for (int giro = 0; giro < 2000; ++giro) {
        std::map<std::array<int, 3>, int> v; // by property, kind and element
        for (int i = 0; i < kNumero; ++i) {
            v[{3, 0, i}] = NomeNodo[i] = tira(5), v[{9, 0, i}] = VincoloNodo[i] = tira(5);
            v[{3, 1, i}] = NomeAsta[i] = tira(5), v[{5, 1, i}] = SezioneAsta[i] = tira(5);
            v[{7, 1, i}] = OrientAsta[i] = tira(5), v[{8, 1, i}] = SvincoloAsta[i] = tira(5);
            v[{3, 2, i}] = NomeGuscio[i] = tira(5), v[{6, 2, i}] = SpessoreGuscio[i] = tira(5);
            v[{2, 1, i}] = SezioneAsta[i] % 4 ? MatSezione[SezioneAsta[i] - 1] : 0;
            v[{2, 2, i}] = SpessoreGuscio[i] % 4 ? MatSpessore[SpessoreGuscio[i] - 1] : 0;
            NumeroElCont[i] = tira(5), NumAsteElCont[i] = tira(5);
            for (int j = 0; j < 4; ++j) AsteElCont(i, j) = tira(kNumero);
            for (auto *t : flag) t[i] = tira(2);
            for (auto *t : attivi) t[i] = tira(8) > 0;
        }
        const int codice = "\2\3\5\6\7\10\11"[giro % 7], tipo = giro / 7 % 5, da = tira(5);
        const bool continuo = tipo == kElContTipo, perNumero = continuo && codice == kNome;
        const int t = continuo ? 1 : tipo, a = std::max(0, da + tira(4) - 1);
        const std::string lista = std::to_string(da) + "-" + std::to_string(a);
        const bool mai = !v.count({codice, t, 0}) || (continuo && codice == kSvincolo);
        CodFunAttiva = static_cast<std::uint8_t>(tira(3));
        FormTelva.OptElem[tipo].Seleziona();
        std::vector<int> atteso(flag[tipo], flag[tipo] + kNumero);
        for (int n = da; n <= a && !mai; ++n)
            for (int k = 0; k < kNumero; ++k) {
                bool preso = !perNumero || NumeroElCont[k] == n;
                for (int j = 0; preso && j < (continuo ? NumAsteElCont[k] : 1); ++j) {
                    const int i = continuo ? AsteElCont(k, j) : k;
                    preso = attivi[t][i] == 1 && (perNumero || v[{codice, t, i}] == n);
                }
                if (preso) atteso[static_cast<std::size_t>(k)] = CodFunAttiva == kAggiungi;
            }
        ProprietaDi(static_cast<std::uint8_t>(codice))->seleziona(lista);
        ASSERT_EQ(std::vector<int>(flag[tipo], flag[tipo] + kNumero), atteso)
            << "property " << codice << " kind " << tipo << " list " << lista;
        MatSezione[giro % 3] = tira(4), MatSpessore[giro % 3] = tira(4);
    }
}
} // namespace telva::prove
