// Selection as a whole: the compact list, invert and remove-all, which commands are enabled.
#include "sostegno/Banco.h"

#include "model/struttura.h"
#include "selection/schede_sel.h"
#include "selection/selezione.h"
#include "ui/controlli/FormTelva.h"

#include <random>
#include <set>
#include <sstream>

namespace telva::prove {
namespace {

struct SelezioneProva : Banco {};
using Elementi = std::vector<std::pair<int, int>>; // name and flag

void Riempi(int tipo, const Elementi &elementi) {
    std::int16_t *nomi[] = {NomeNodo.Dati(), NomeAsta.Dati(), NomeGuscio.Dati(),
                            NumeroElCont.Dati()};
    std::int16_t *flag[] = {SelNodo.Dati(), SelAsta.Dati(), SelGuscio.Dati(), SelElCont.Dati()};
    std::int16_t *numero[] = {&NumNodi, &NumAste, &NumGusci, &NumElCont};
    *numero[tipo] = static_cast<std::int16_t>(elementi.size());
    for (const auto &[nome, sel] : elementi) {
        *nomi[tipo]++ = static_cast<std::int16_t>(nome);
        *flag[tipo]++ = static_cast<std::int16_t>(sel);
    }
}

// The rules as they are told: exchange sort, then run by run.
std::string ListaDiRiferimento(Elementi e) {
    for (bool scambio = true; scambio;) {
        scambio = false;
        for (std::size_t i = 1; i < e.size(); ++i)
            if (e[i - 1].first > e[i].first) std::swap(e[i - 1], e[i]), scambio = true;
    }
    std::string lista;
    int inizio = 0, ultimo = 0;
    const auto chiudi = [&] {
        if (inizio < 1) return;
        lista += (lista.empty() ? "" : ",") + std::to_string(inizio);
        if (ultimo > inizio) lista += "-" + std::to_string(ultimo);
    };
    for (std::size_t i = 0; i < e.size(); ++i) {
        const int nome = e[i].first > 0 && e[i].second != 1 ? -e[i].first : e[i].first;
        if (i == 0) {
            inizio = ultimo = nome;
            if (nome > 0) lista = std::to_string(nome);
        } else if (nome > 0 && nome != ultimo + 1) {
            chiudi();
            inizio = ultimo = nome;
        } else if (nome > 0) {
            (inizio < 1 ? inizio : ultimo) = nome;
        }
    }
    chiudi();
    return lista;
}

TEST_F(SelezioneProva, ListaCompatta) {
    static const std::pair<const char *, const char *> kCasi[] = {
        {"", ""}, {"7- 9-", ""}, {"7+", "7,7"}, {"8- 7+ 9-", "7,7"}, {"1+ 2+ 3+", "1,1-3"},
        {"9+ 4+", "4,4,9"}, {"1+ 2+ 5+", "1,1-2,5"}, {"1- 2+ 3- 4+ 5+", "2,4-5"},
        {"3+ 1- 2+ 4+", "2-4"}, {"0+ 1+", "1"}, {"0+ 1+ 2+ 3+", "1,2-3"}, {"-3+ 2+ 3+", "2-3"},
        {"-2- 2- 3+", "3"}, {"-1+ 0- 1+", "1"}, {"4+ 4+", "4,4,4"}, {"4- 4+ 5+", "4-5"},
        {"4+ 4- 5+", "4,4-5"}, {"32766+ 32767+", "32766,32766-32767"}};
    for (const auto &[elementi, lista] : kCasi) {
        Elementi e;
        std::istringstream s(elementi);
        int nome = 0;
        for (char segno; s >> nome >> segno;) e.emplace_back(nome, segno == '+');
        Riempi(kNodiTipo, e);
        EXPECT_EQ(FormattaListaSel(OrdinaNumeriSel(kNodiTipo)), lista) << elementi;
    }
}

TEST_F(SelezioneProva, ListaCasualeEsattaERiletta) {
    std::mt19937 caso(7);
    for (int giro = 0; giro < 3000; ++giro) {
        Elementi e(caso() % 30);
        std::set<int> scelti;
        for (auto &[nome, sel] : e) {
            nome = static_cast<int>(caso() % 36) - 4;
            sel = caso() % 3 != 0;
            if (sel == 1 && nome > 0) scelti.insert(nome);
        }
        const int tipo = giro % 4;
        Riempi(tipo, e);
        const std::string lista = FormattaListaSel(OrdinaNumeriSel(tipo));
        ASSERT_EQ(lista, ListaDiRiferimento(e));
        std::vector<std::int16_t> riletti;
        ASSERT_EQ(LeggiLista(lista, kCapacitaNomi, riletti), EsitoLista::Riuscita);
        ASSERT_EQ(std::set<int>(riletti.begin(), riletti.end()), scelti) << lista;
    }
}

TEST_F(SelezioneProva, InvertiERimuoviTuttoLascianoINascosti) {
    Apri(Telaio());
    const auto intervalloZ = [](const char *da) {
        FormTelva.IntZ[0].Text = da;
        FormTelva.IntZ[0].KeyDown(13);
    };
    static const struct {
        const char *mostrati, *nascosti, *tutti;
    } kCasi[] = {{"4-9", "1,1-3", "1,1-9"},
                 {"3-6,8,10,12", "1,1-2,7,9,11", "1,1-12"},
                 {"3-4", "1,1-2", "1,1-4"},
                 {"20", "10,10", "10,10,20"},
                 {"", "", ""}};
    for (int tipo = 0; tipo < 5; ++tipo) {
        const auto &c = kCasi[tipo];
        FormTelva.OptElem[tipo].Seleziona();
        FormTelva.Aggiungi.Click();
        intervalloZ("100");
        if (tipo < 4) FormTelva.Tutto.Click(); // walls: the shells
        EXPECT_EQ(Lista(), c.mostrati);
        intervalloZ("0");
        FormTelva.Inverti.Click();
        EXPECT_EQ(Lista(), c.nascosti);
        intervalloZ("100");
        FormTelva.Inverti.Click();
        EXPECT_EQ(Lista(), c.tutti);
        FormTelva.Materiale.Click();
        FormTelva.RimTutto.Click();
        EXPECT_EQ(Lista(), c.nascosti);
        EXPECT_EQ(CodFunAttiva, kAggiungi);
        EXPECT_EQ(CodSottoFun, kMateriale);
        EXPECT_EQ(FormTelva.SottoFunAttiva.Caption(), "Selezione diretta");
        intervalloZ("0");
        if (tipo == 3) continue; // its bars are not selected, and so not hidden
        FormTelva.ElNonSelez.Premi();
        FormTelva.Inverti.Click(); // reaches the selected ones only
        EXPECT_EQ(Lista(), "");
        FormTelva.ElNonSelez.Premi();
    }
}

std::string Disabilitate() {
    std::string nomi;
    for (const VoceMenu *v : FormTelva.Selezioni.voci)
        if (!v->Enabled) nomi += v->NomeControllo() + " ";
    return nomi;
}

TEST_F(SelezioneProva, ComandiPerTipoEFunzione) {
    static const char *kDisabilitate[] = {
        "TipoLinea TipoTratt Materiale SchSezione SchSpessore SchOrientamento SchSvincolo ",
        "TipoPunto TipoTratt SchSpessore SchVincolo ",
        "TipoPunto TipoLinea SchSezione SchOrientamento SchSvincolo SchVincolo ",
        "TipoPunto TipoTratt SchSpessore SchSvincolo SchVincolo ", ""};
    static const char *kTutte = "Finestra Colore TipoPunto TipoLinea TipoTratt Materiale SchSezione "
                                "SchSpessore SchOrientamento SchSvincolo SchVincolo Nome Tutto ";
    Apri(Telaio());
    for (VoceMenu *comando : {&FormTelva.Aggiungi, &FormTelva.Rimuovi})
        for (int tipo = 0; tipo < 5; ++tipo) {
            EXPECT_EQ(Disabilitate(), kTutte);
            EXPECT_FALSE(FormTelva.Interrompi.Enabled());
            EXPECT_EQ(FormTelva.FunAttiva.Caption(), "");
            FormTelva.OptElem[tipo].Seleziona();
            EXPECT_EQ(Disabilitate(), kTutte) << "no function is active";
            comando->Click();
            EXPECT_TRUE(FormTelva.Interrompi.Enabled());
            for (int altro : {tipo, 4, 0, 3, 1, 2}) {
                FormTelva.OptElem[altro].Seleziona();
                EXPECT_EQ(Disabilitate(), kDisabilitate[altro]) << tipo;
            }
            FormTelva.KeyPress(27);
        }
}

} // namespace
} // namespace telva::prove
