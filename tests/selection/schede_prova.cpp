// Typed lists: the parser, what is refused, which elements a list marks.
#include "selection/schede_sel.h"
#include "sostegno/Recita.h"
#include <sstream>

namespace telva::prove {

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
} // namespace telva::prove
