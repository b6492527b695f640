#include "ScriviLavoro.h"
#include "model/leggstr_cond.h"
#include "model/struttura.h"
#include "model/tabelle_cond.h"
#include "sostegno/Banco.h"
#include "startup/avvio.h"
#include "startup/basCommon_cond.h"
#include "startup/direttori_cond.h"

#include <algorithm>
#include <random>

namespace telva::prove {

struct Leggstr : Banco {
    Leggstr() { DirLavoro = Radice(); }
    // The reader's flag; -1 when the program ended.
    int LeggiTesto(const std::string &struttura) {
        Scrivi("STRUTTUR.STR", struttura);
        messaggi.clear();
        AzzeraStruttura();
        std::int16_t ok = 0;
        return Esegui([&] { LeggiStruttura(ok); }) ? ok : -1;
    }
};

TEST_F(Leggstr, SenzaReleaseIlProgrammaFinisce) {
    for (const char *testata : {"RELEASE 4.0", "xReLeAsE"})
        EXPECT_EQ(LeggiTesto(std::string(testata) + "\n0\n0\n0\n0\n"), 1) << testata;
    for (const char *testata : {"", "Versione 3.8\n1\n0 0 0\n", "\nRelease\n"}) {
        EXPECT_EQ(LeggiTesto(testata), -1) << testata;
        EXPECT_EQ(codiceFine, 0);
        EXPECT_EQ(messaggi, (std::vector<Messaggio>{
            {"Versione 3.8 o precedente. Caricare e risalvare la struttura in 'Zorel'", Icona::Critica, "Attenzione"}}));
        EXPECT_EQ(NumPunti, 0);
    }
}

TEST_F(Leggstr, CampiERecordLiberiVannoAlLoroPosto) {
    const std::string testo = "Release\r\n 3 punti\r\n1.5,-2,3\r\n5000 7000 1\n4999.9\t-4999.9 x\r\n"
        "2\r\n\t 2 \t3   9 \r\n32000 5\r\n1.5 2.5 3.5 6\r\n-4 6x\r\n1\r\n1,0 2\t3\r\n7\t1 2 3\r\n"
        "1 coda\r\n0 1 0 -1\r\n8 9 10 1.75 4\r\n2\nsaltata\n9 9\n0\n1\nx\n2\ncitt\xE0 \r\nx\nsecondo\r\n";
    EXPECT_EQ(LeggiTesto(testo), 1);
    EXPECT_EQ(std::vector({PuntoX[0], PuntoY[0], PuntoZ[0], PuntoX[1], PuntoY[2], PuntoZ[2]}),
              std::vector({1.5, -2.0, 3.0, 5000.0, -4999.9, 0.0}));
    // The second point lies outside the box of +-5000.
    EXPECT_EQ(std::vector({XMin, XMax, YMin, YMax, ZMin, ZMax}), std::vector({1.5, 4999.9, -4999.9, -2.0, 0.0, 3.0}));
    const std::pair<std::vector<int>, std::vector<int>> righe[] = {
        {{NumPunti, NumNodi, NumAste, NumGusci, NumTestiFinali}, {3, 2, 1, 1, 2}},
        {{PuntoNodo[0], TipoPtNodo[0], ColNodo[0], NomeNodo[0], VincoloNodo[0]}, {2, 3, 9, 32000, 5}},
        {{PuntoNodo[1], TipoPtNodo[1], ColNodo[1], NomeNodo[1], VincoloNodo[1]}, {2, 2, 4, -4, 6}},
        {{NodoIAsta[0], NodoJAsta[0], TipoLinAsta[0], ColAsta[0]}, {1, 0, 2, 3}},
        {{NomeAsta[0], SezioneAsta[0], SvincoloAsta[0], OrientAsta[0], DatoAsta5[0], DatoAsta6[0]}, {7, 1, 2, 3, 0, 0}},
        {{NodiGuscio[0][2], NodiGuscio[0][3], TrattGuscio[0], NomeGuscio[0], SpessoreGuscio[0], ColGuscio[0]}, {0, -1, 8, 9, 10, 4}}};
    for (const auto &[letti, attesi] : righe) EXPECT_EQ(letti, attesi);
    EXPECT_EQ(TestoFinale[0] + "|" + TestoFinale[1], "città |secondo");
    EXPECT_EQ(LeggiTesto("Release\n2\n5000 0 0\n0 -5000 0\n0\n0\n0\n"), 1);
    EXPECT_EQ(std::vector({XMin, XMax, YMin, YMax}), std::vector({0.0, 0.0, 0.0, 0.0}));
}

TEST_F(Leggstr, UnNomeNodoOltre32000FermaLaLettura) {
    EXPECT_EQ(LeggiTesto("Release\n0\n2\n0 0 1\n7 1\n0 0 2\n32001 5\n1\n"), 0);
    EXPECT_EQ(messaggi, (std::vector<Messaggio>{{"Nome nodo maggiore di 32000.", Icona::Esclamazione, "ERRORE IN STRUTTUR.STR"}}));
    EXPECT_EQ(NomeNodo[0], 7);
    Cancella("STRUTTUR.STR");
    messaggi.clear();
    std::int16_t ok = 1;
    LeggiStruttura(ok);
    EXPECT_EQ(ok, 0);
    EXPECT_TRUE(messaggi.empty());
}

TEST_F(Leggstr, GliIngombriMancantiOErratiSonoTuttiZero) {
    const std::string aste = "Release\n0\n0\n3\n0 0 0 1\n4\n0 0 0 1\n0\n0 0 0 1\n5\n0\n";
    const std::pair<const char *, bool> casi[] = {
        {"1,2,3\n4 5 6\n7 8 9\n10 11 12\n", true}, {"1 2 3 4 5 6 7 8 9 10 11", false}, {"1 2 3 4 5 6\n7 x 9 10 11 12", false}, {"", false}};
    for (const auto &[ingombri, buoni] : casi) {
        Scrivi("Ingombri.tmp", ingombri);
        EXPECT_EQ(LeggiTesto(aste), 1);
        EXPECT_EQ(std::vector({IngIX[0], IngJZ[0], IngIX[1], IngIX[2], IngJZ[2]}),
                  buoni ? std::vector({1.0, 6.0, 0.0, 7.0, 12.0}) : std::vector<double>(5)) << ingombri;
        EXPECT_TRUE(messaggi.empty());
    }
}

TEST_F(Leggstr, UnFileFuoriDaiLimitiFinisceConFileRigaEMotivo) {
    struct {
        const char *testo;
        int riga;
        const char *motivo;
    } casi[] = {
        {"20002\n", 2, "troppi punti: 20002 (al massimo 20001)"}, {"0\n20002\n", 3, "troppi nodi"},
        {"0\n0\n20002\n", 4, "troppe aste"}, {"0\n0\n0\n16002\n", 5, "troppi gusci"},
        {"0\n0\n0\n0\n0\n0\n0\n202\n", 9, "troppi testi"}, {"-40000\n", 2, "16 bit"},
        {"0\n1\n0 40000 1\n5 0\n", 4, "16 bit: 40000"}, {"0\n1\n0 0 1\n-32769 0\n", 5, "16 bit"},
        {"0\n0\n1\n0 0 70000 1\n", 5, "16 bit"}, {"0\n1\n20001 1 1\n5 0\n0\n0\n", 4, "punto 20001"},
        {"0\n0\n1\n-1 0 1 1\n5\n0\n", 5, "nodo -1"}, {"0\n0\n0\n1\n0 0 -1 -1\n1 1\n", 6, "nodo -1"},
        {"2\n0 0 0\n", 4, "finisce"}, {"0\n1\n0 0 0\n", 5, "finisce"}, {"0\n0\n1\n0 0 0 0\n", 6, "finisce"},
        {"0\n0\n0\n1\n0 0 0 0", 7, "finisce"}, {"0\n0\n0\n0\n3\nx\n", 8, "finisce"},
        {"0\n0\n0\n0\n0\n0\n0\n2\na\nb\nc\n", 13, "finisce"}};
    for (const auto &c : casi) {
        EXPECT_EQ(LeggiTesto(std::string("Release\n") + c.testo), -1) << c.testo;
        EXPECT_EQ(codiceFine, 1);
        ASSERT_EQ(messaggi.size(), 1u) << c.testo;
        EXPECT_TRUE(messaggi[0].icona == Icona::Critica && messaggi[0].titolo == "ERRORE");
        const std::string inizio = "File " + Radice() + "\\STRUTTUR.STR, riga " + std::to_string(c.riga) + ": ";
        EXPECT_TRUE(messaggi[0].testo.starts_with(inizio)) << messaggi[0].testo << c.testo;
        EXPECT_NE(messaggi[0].testo.find(c.motivo), std::string::npos) << messaggi[0].testo;
    }
}

TEST_F(Leggstr, UnaStrutturaTroncataSiLeggeOSiSpiega) {
    LavoroProva l;
    l.punti = {{0, 0, 0}, {100, 0, 50}};
    l.nodi = {{0, 1}, {1, 2}};
    l.aste = {{0, 1, 7}};
    l.gusci = {{{0, 1, 0, -1}, 3}};
    const std::string intera = l.Struttura();
    for (std::size_t n = 0; n <= intera.size(); ++n) {
        AzzeraProgramma();
        messaggi.clear();
        Installa();
        ScriviLavoro(l);
        Scrivi("lavori/prova1/STRUTTUR.STR", intera.substr(0, n));
        const bool prosegue = Avvia();
        ASSERT_EQ(messaggi.size(), prosegue ? 0u : 1u) << n;
        if (!prosegue) EXPECT_EQ(messaggi[0].titolo, codiceFine == 1 ? "ERRORE" : "Attenzione") << n;
    }
    EXPECT_EQ(NomeGuscio[0], 3);
}

// How many entries of a table differ from what the generator holds.
template <class Voci, class Uguale> static int Diverse(const Voci &voci, Uguale uguale) {
    int diverse = 0, i = 0;
    for (const auto &voce : voci) diverse += uguale(voce, i++) ? 0 : 1;
    return diverse;
}

TEST_F(Leggstr, UnLavoroAPienaCapacitaSiRileggeUguale) {
    using namespace generatore;
    const Lavoro l = Genera({.Seme = 5, .Misura = Taglia::Piena});
    std::string cartella = Radice();
    std::replace(cartella.begin(), cartella.end(), '\\', '/');
    generatore::ScriviLavoro(cartella, l);
    CaricaMessaggi();
    EXPECT_EQ(LeggiSpessori() + LeggiSezioni() + LeggiElCont(), "");
    std::int16_t ok = 0;
    ASSERT_TRUE(Esegui([&] { LeggiStruttura(ok); }));
    EXPECT_TRUE(ok == 1 && messaggi.empty());
    EXPECT_EQ((std::vector<int>{NumPunti, NumNodi, NumAste, NumGusci, NumElCont, NumSpessori, NumSezioni, NumTestiFinali}),
              (std::vector<int>{20001, 20001, 20001, 16001, 2000, 100, 99, 201}));
    EXPECT_EQ(Diverse(l.Punti, [](auto &p, int i) { return p == Punto{PuntoX[i], PuntoY[i], PuntoZ[i]}; }), 0);
    EXPECT_EQ(Diverse(l.Nodi, [](auto &n, int i) {
        return n.IndicePunto == PuntoNodo[i] && n.TipoPunto == TipoPtNodo[i] && n.Colore == ColNodo[i] && n.Nome == NomeNodo[i] && n.Vincolo == VincoloNodo[i]; }), 0);
    EXPECT_EQ(Diverse(l.Aste, [](auto &a, int i) {
        const Punto ingI{IngIX[i], IngIY[i], IngIZ[i]}, ingJ{IngJX[i], IngJY[i], IngJZ[i]};
        return a.NodoI == NodoIAsta[i] && a.NodoJ == NodoJAsta[i] && a.TipoLinea == TipoLinAsta[i] && a.Colore == ColAsta[i] && a.Nome == NomeAsta[i] && a.Sezione == SezioneAsta[i] &&
            a.Svincolo == SvincoloAsta[i] && a.Orientamento == OrientAsta[i] && a.Dato5 == DatoAsta5[i] && a.Dato6 == DatoAsta6[i] && (a.Nome <= 0 || (a.IngI == ingI && a.IngJ == ingJ)); }), 0);
    EXPECT_EQ(Diverse(l.Gusci, [](auto &g, int i) {
        return std::ranges::equal(g.Nodi, std::span(NodiGuscio[i]).first(4)) && g.Tratteggio == TrattGuscio[i] && g.Nome == NomeGuscio[i] && g.Spessore == SpessoreGuscio[i] && g.Colore == ColGuscio[i]; }), 0);
    EXPECT_EQ(Diverse(l.ElementiContinui, [](auto &e, int i) {
        return e.Numero == NumeroElCont[i] && e.Dato2 == DatoElCont2[i] && e.Nome == NomeElCont[i] && std::ssize(e.Aste) == NumAsteElCont[i] &&
            Diverse(e.Aste, [i](int a, int j) { return a == AsteElCont(i, j); }) == 0; }), 0);
    EXPECT_EQ(Diverse(l.Spessori, [](auto &s, int i) { return s.Materiale == MatSpessore[i] && s.Valore == ValSpessore[i]; }), 0);
    EXPECT_EQ(Diverse(l.Sezioni, [](auto &s, int i) { return s.Materiale == MatSezione[i]; }), 0);
    EXPECT_EQ(Diverse(l.TestiFinali, [](auto &t, int i) { return t.first == TestoFinale[i]; }), 0);
}

TEST_F(Leggstr, LaConversioneTrovaLaPrimaAstaDelNome) {
    std::mt19937 caso(11);
    for (int giro = 0; giro < 20; ++giro) {
        AzzeraStruttura();
        const auto nome = [&] { return static_cast<std::int16_t>(giro % 2 ? caso() : caso() % 300 - 20); };
        NumAste = static_cast<std::int16_t>(caso() % 400);
        NumElCont = 60;
        for (int b = 0; b < NumAste; ++b) NomeAsta[b] = nome();
        for (int k = 0; k < NumElCont; ++k) {
            NumAsteElCont[k] = static_cast<std::int16_t>(caso() % 301);
            for (int j = 0; j < 300; ++j) AsteElCont(k, j) = nome();
        }
        std::vector<std::int16_t> attese, lette;
        for (int k = 0; k < NumElCont; ++k)
            for (int j = 0; j < 300; ++j) {
                const auto *fine = NomeAsta.Dati() + NumAste;
                const auto *trovata = std::find<const std::int16_t *>(NomeAsta.Dati(), fine, AsteElCont(k, j));
                attese.push_back(j < NumAsteElCont[k] && trovata != fine ? static_cast<std::int16_t>(trovata - NomeAsta.Dati()) : AsteElCont(k, j));
            }
        ConvertiAsteElCont();
        for (int k = 0; k < NumElCont; ++k)
            for (int j = 0; j < 300; ++j) lette.push_back(AsteElCont(k, j));
        EXPECT_TRUE(lette == attese) << giro;
    }
}

} // namespace telva::prove
