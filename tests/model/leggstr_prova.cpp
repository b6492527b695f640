#include "Generatore.h"
#include "ScriviLavoro.h"
#include "model/leggstr_cond.h"
#include "model/struttura.h"
#include "model/tabelle_cond.h"
#include "sostegno/Banco.h"
#include "startup/avvio.h"
#include "startup/direttori_cond.h"
#include <algorithm>
#include <random>
namespace telva::prove {
struct Leggstr : Banco {
    int LeggiTesto(const std::string &struttura) { // its flag; -1 when the program ended
        DirLavoro = Radice();
        Scrivi("STRUTTUR.STR", struttura);
        messaggi.clear();
        std::int16_t ok = 0;
        return Esegui([&] { LeggiStruttura(ok); }) ? ok : -1;
    }
};

// Awkward on purpose: every separator, broken values, entries outside the box of +-5000.
constexpr const char *kStrana = "x RELEASE 4\r\n"
                                " 5 punti\r\n"
                                "1.5,-2,3\r\n"
                                "5000 1 1\n"
                                "4999.9\t-4999.9 x\r\n"
                                "2 -5000 9 2 1 5000\n"
                                "2\r\n"
                                "\t 4 \t3  9\r\n"
                                "32000 5\r\n"
                                "1.5 2.5 3.5 6\r\n"
                                "-4 6x\r\n"
                                "3\n"
                                "1,0 2\t3\r\n"
                                "7\t1 2 3\r\n"
                                "0 0 0 0\n"
                                "\n" // a bar without name
                                "0 0 0 0\n"
                                "9\n"
                                "1 x\n"
                                "0 1 0 -1\r\n"
                                "8 9 10 1.7 4\n"
                                "1\nx\n"
                                "0\n"
                                "1\nx\n"
                                "1\n"
                                " citt\xE0 \r\n"
                                "x\n";

TEST_F(Leggstr, OgniValoreVaAlSuoPosto) {
    EXPECT_EQ(LeggiTesto(kStrana), 1);
    EXPECT_EQ(NumPunti, 5);
    EXPECT_EQ(PuntoX[1], 5000);
    EXPECT_EQ(PuntoY[0], -2);
    EXPECT_EQ(PuntoZ[2], 0) << "a broken value";
    EXPECT_EQ(PuntoZ[4], 5000);
    struct Caso {
        const char *che;
        int visto, atteso;
    };
    for (const Caso &c :
         {Caso{.che = "nodes", .visto = NumNodi, .atteso = 2},
          {.che = "point of node 0", .visto = PuntoNodo[0], .atteso = 4},
          {.che = "point type of node 0", .visto = TipoPtNodo[0], .atteso = 3},
          {.che = "colour of node 0", .visto = ColNodo[0], .atteso = 9},
          {.che = "name of node 0", .visto = NomeNodo[0], .atteso = 32000},
          {.che = "support of node 0", .visto = VincoloNodo[0], .atteso = 5},
          {.che = "1.5 goes to the even one", .visto = PuntoNodo[1], .atteso = 2},
          {.che = "2.5 goes to the even one", .visto = TipoPtNodo[1], .atteso = 2},
          {.che = "3.5 goes to the even one", .visto = ColNodo[1], .atteso = 4},
          {.che = "name below zero", .visto = NomeNodo[1], .atteso = -4},
          {.che = "only the leading number", .visto = VincoloNodo[1], .atteso = 6},
          {.che = "bars", .visto = NumAste, .atteso = 3},
          {.che = "first node of bar 0", .visto = NodoIAsta[0], .atteso = 1},
          {.che = "second node of bar 0", .visto = NodoJAsta[0], .atteso = 0},
          {.che = "line type of bar 0", .visto = TipoLinAsta[0], .atteso = 2},
          {.che = "colour of bar 0", .visto = ColAsta[0], .atteso = 3},
          {.che = "name of bar 0", .visto = NomeAsta[0], .atteso = 7},
          {.che = "section of bar 0", .visto = SezioneAsta[0], .atteso = 1},
          {.che = "release of bar 0", .visto = SvincoloAsta[0], .atteso = 2},
          {.che = "orientation of bar 0", .visto = OrientAsta[0], .atteso = 3},
          {.che = "datum 5 of bar 0, which is missing", .visto = DatoAsta5[0], .atteso = 0},
          {.che = "name of bar 1, which has none", .visto = NomeAsta[1], .atteso = 0},
          {.che = "name of bar 2", .visto = NomeAsta[2], .atteso = 9},
          {.che = "shells", .visto = NumGusci, .atteso = 1},
          {.che = "corner 1 of shell 0", .visto = NodiGuscio[0][1], .atteso = 1},
          {.che = "corner 3 of shell 0", .visto = NodiGuscio[0][3], .atteso = -1},
          {.che = "hatch of shell 0", .visto = TrattGuscio[0], .atteso = 8},
          {.che = "name of shell 0", .visto = NomeGuscio[0], .atteso = 9},
          {.che = "thickness of shell 0", .visto = SpessoreGuscio[0], .atteso = 10},
          {.che = "colour of shell 0", .visto = ColGuscio[0], .atteso = 4},
          {.che = "texts", .visto = NumTestiFinali, .atteso = 1}})
        EXPECT_EQ(c.visto, c.atteso) << c.che;
    EXPECT_EQ(TestoFinale[0], " citt\u00E0 ");
}

TEST_F(Leggstr, LaScatolaNonContaIPuntiLontani) {
    LeggiTesto(kStrana); // points 1, 3 and 4 lie outside, by one coordinate each
    EXPECT_EQ(PrimoPuntoContato, 0);
    EXPECT_EQ(XMin, 1.5);
    EXPECT_EQ(XMax, 4999.9);
    EXPECT_EQ(YMin, -4999.9);
    EXPECT_EQ(YMax, -2);
    EXPECT_EQ(ZMin, 0);
    EXPECT_EQ(ZMax, 3);
}

TEST_F(Leggstr, LaScatolaDiPuntiTuttiNegativiNonComprendeLoZero) {
    LeggiTesto("release\n3\n-6000 -6000 -6000\n-7 -8 -9\n-4 -5 -6\n");
    EXPECT_EQ(PrimoPuntoContato, 1);
    EXPECT_EQ(XMin, -7);
    EXPECT_EQ(XMax, -4);
    EXPECT_EQ(YMax, -5);
    EXPECT_EQ(ZMax, -6);
}

TEST_F(Leggstr, UnFileDiIngombriCortoOGuastoNonNeLasciaNessuno) {
    struct Caso {
        const char *che, *file;
        bool buono;
    };
    for (const Caso &c :
         {Caso{.che = "short", .file = "1 2", .buono = false},
          {.che = "broken", .file = "1 2 3 4 5 6\n7 x 9 10 11 12\n", .buono = false},
          {.che = "good; bar 1 has none", .file = "1,2,3\n4 5 6\n7 8 9 1 1 2", .buono = true}}) {
        Scrivi("Ingombri.tmp", c.file);
        EXPECT_EQ(LeggiTesto(kStrana), 1) << c.che;
        EXPECT_EQ(IngIX[0], c.buono ? 1 : 0) << c.che;
        EXPECT_EQ(IngIZ[0], c.buono ? 3 : 0) << c.che;
        EXPECT_EQ(IngJZ[0], c.buono ? 6 : 0) << c.che;
        EXPECT_EQ(IngIX[1], 0) << c.che;
        EXPECT_EQ(IngIX[2], c.buono ? 7 : 0) << c.che;
        EXPECT_EQ(IngJZ[2], c.buono ? 2 : 0) << c.che;
    }
}

TEST_F(Leggstr, UnFileInaccettabileSiSpiegaConRigaEMotivo) {
    const char *const corto = "il file finisce prima delle voci annunciate";
    struct Caso {
        const char *che, *testo;
        int riga;
        std::string motivo;
    };
    for (const Caso &c : {
             Caso{.che = "points",
            .testo = "20002\n",
            .riga = 2,
            .motivo = "troppi punti: 20002 (al massimo 20001)"},
             {.che = "nodes",
             .testo = "0\n20002\n",
             .riga = 3,
             .motivo = "troppi nodi: 20002 (al massimo 20001)"},
             {.che = "bars",
             .testo = "0\n0\n20002\n",
             .riga = 4,
             .motivo = "troppe aste: 20002 (al massimo 20001)"},
             {.che = "shells",
             .testo = "0\n0\n0\n16002\n",
             .riga = 5,
             .motivo = "troppi gusci: 16002 (al massimo 16001)"},
             {.che = "texts",
             .testo = "0\n0\n0\n0\n0\n0\n0\n202\n",
             .riga = 9,
             .motivo = "troppi testi finali: 202 (al massimo 201)"},
             {.che = "a count of more than 16 bits",
             .testo = "-40000\n",
             .riga = 2,
             .motivo = "numero fuori dai limiti di 16 bit: -40000"},
             {.che = "a node's field",
             .testo = "0\n1\n0 40000 1\n5 0\n",
             .riga = 4,
             .motivo = "numero fuori dai limiti di 16 bit: 40000"},
             {.che = "a bar's field",
             .testo = "0\n0\n1\n0 0 70000 1\n",
             .riga = 5,
             .motivo = "numero fuori dai limiti di 16 bit: 70000"},
             {.che = "a node's point",
             .testo = "0\n1\n20001 1 1\n5 0\n0\n0\n",
             .riga = 4,
             .motivo = "punto 20001 fuori dalla tabella (0..20000)"},
             {.che = "a bar's node",
             .testo = "0\n0\n1\n-1 0 1 1\n5\n0\n",
             .riga = 5,
             .motivo = "nodo -1 fuori dalla tabella (0..20000)"},
             {.che = "a shell's third node",
             .testo = "0\n0\n0\n1\n0 0 -1 -1\n1 1\n",
             .riga = 6,
             .motivo = "nodo -1 fuori dalla tabella (0..20000)"},
             {.che = "points that are missing", .testo = "2\n0 0 0\n", .riga = 4, .motivo = corto},
             {.che = "a node's second line", .testo = "0\n1\n0 0 0\n", .riga = 5, .motivo = corto},
             {.che = "a bar's second line",
             .testo = "0\n0\n1\n0 0 0 0\n",
             .riga = 6,
             .motivo = corto},
             {.che = "a shell's second line",
             .testo = "0\n0\n0\n1\n0 0 0 0",
             .riga = 7,
             .motivo = corto},
             {.che = "a section passed over",
             .testo = "0\n0\n0\n0\n3\nx\n",
             .riga = 8,
             .motivo = corto},
             {.che = "the second text's line",
             .testo = "0\n0\n0\n0\n0\n0\n0\n2\na\nb\nc\n",
             .riga = 13,
             .motivo = corto},
         }) {
        EXPECT_EQ(LeggiTesto("Release\n" + std::string(c.testo)), -1) << c.che;
        EXPECT_EQ(codiceFine, 1) << c.che;
        const std::string detto = "File " + DirLavoro + "\\STRUTTUR.STR, riga " +
                                  std::to_string(c.riga) + ": " + c.motivo;
        EXPECT_EQ(messaggi, (std::vector<Messaggio>{{detto, Icona::Critica, "ERRORE"}})) << c.che;
    }
}

TEST_F(Leggstr, UnaVersioneVecchiaChiudeIlProgramma) {
    EXPECT_EQ(LeggiTesto("4.0\nRelease"), -1);
    EXPECT_EQ(codiceFine, 1);
    EXPECT_EQ(messaggi,
              (std::vector<Messaggio>{
                  {"Versione 3.8 o precedente. Caricare e risalvare la struttura in 'Zorel'",
                   Icona::Critica, "Attenzione"}}));
}

TEST_F(Leggstr, UnNomeDiNodoOltreTrentaduemilaFermaLaLettura) {
    EXPECT_EQ(LeggiTesto("release\n0\n2\n0 0 0\n32000\n0 0 0\n32001\n1\n"), 0);
    EXPECT_EQ(messaggi, (std::vector<Messaggio>{{"Nome nodo maggiore di 32000.",
                                                 Icona::Esclamazione, "ERRORE IN STRUTTUR.STR"}}));
    EXPECT_EQ(NumAste, 0);
}

TEST_F(Leggstr, UnaStrutturaTroncataSiLeggeOSiSpiega) {
    const std::string intera = Telaio().Struttura();
    Installa();
    ScriviLavoro(Telaio());
    for (std::size_t n = 0; n <= intera.size(); ++n) {
        AzzeraProgramma();
        messaggi.clear();
        Scrivi("lavori/prova1/STRUTTUR.STR", intera.substr(0, n));
        const bool prosegue = Avvia();
        ASSERT_EQ(messaggi.size(), prosegue ? 0u : 1u) << "the first " << n << " bytes";
    }
    EXPECT_EQ(NomeGuscio[3], 4) << "the whole file";
}

TEST_F(Leggstr, DopoUnAzzeramentoNonRestaNulla) {
    LeggiTesto(Telaio().Struttura());
    NumElCont = 1;
    AsteElCont(0, 0) = 7;
    AzzeraProgramma();
    EXPECT_EQ(NumNodi, 0);
    EXPECT_EQ(NomeNodo[8], 0);
    EXPECT_EQ(PuntoX[8], 0);
    EXPECT_EQ(NomeAsta[11], 0);
    EXPECT_EQ(NodiGuscio[3][0], 0);
    EXPECT_EQ(NomeGuscio[3], 0);
    EXPECT_EQ(NumElCont, 0);
    EXPECT_EQ(AsteElCont(0, 0), 0);
    EXPECT_EQ(PrimoPuntoContato, -1);
}

struct LeggstrPieno : Leggstr {
    std::string cartella;
    generatore::Lavoro lavoro;

    LeggstrPieno() : cartella(Radice()) {
        std::ranges::replace(cartella, '\\', '/');
        DirLavoro = Radice();
        generatore::Parametri parametri;
        parametri.Misura = generatore::Taglia::Piena;
        lavoro = generatore::Genera(parametri);
        generatore::ScriviLavoro(cartella, lavoro);
    }
    void Leggi() {
        std::int16_t ok = 0;
        EXPECT_EQ(LeggiElCont(), "");
        LeggiStruttura(ok);
        EXPECT_EQ(ok, 1);
        EXPECT_TRUE(messaggi.empty());
    }
    // What stands in the program's tables, in place of what was generated.
    void RiprendiPuntiENodi() {
        for (int i = 0; i < kNodi; ++i) {
            lavoro.Punti[i] = {PuntoX[i], PuntoY[i], PuntoZ[i]};
            lavoro.Nodi[i] = {PuntoNodo[i], TipoPtNodo[i], ColNodo[i], NomeNodo[i], VincoloNodo[i]};
        }
    }
    void RiprendiAste() {
        for (int b = 0; b < kAste; ++b)
            lavoro.Aste[b] = {.NodoI = NodoIAsta[b],
                              .NodoJ = NodoJAsta[b],
                              .TipoLinea = TipoLinAsta[b],
                              .Colore = ColAsta[b],
                              .Nome = NomeAsta[b],
                              .Sezione = SezioneAsta[b],
                              .Svincolo = SvincoloAsta[b],
                              .Orientamento = OrientAsta[b],
                              .Dato5 = DatoAsta5[b],
                              .Dato6 = DatoAsta6[b],
                              .IngI = {IngIX[b], IngIY[b], IngIZ[b]},
                              .IngJ = {IngJX[b], IngJY[b], IngJZ[b]}};
    }
    void RiprendiGusciEdElementi() {
        for (int s = 0; s < kGusci; ++s) {
            const auto &n = NodiGuscio[s];
            lavoro.Gusci[s] = {.Nodi = {n[0], n[1], n[2], n[3]},
                               .Tratteggio = TrattGuscio[s],
                               .Nome = NomeGuscio[s],
                               .Spessore = SpessoreGuscio[s],
                               .Valore = lavoro.Gusci[s].Valore,
                               .Colore = ColGuscio[s]};
        }
        for (int k = 0; k < kElCont; ++k) {
            const std::int16_t *aste = &AsteElCont(k, 0);
            lavoro.ElementiContinui[k] = {.Numero = NumeroElCont[k],
                                          .Dato2 = DatoElCont2[k],
                                          .Nome = NomeElCont[k],
                                          .Aste = {aste, aste + NumAsteElCont[k]}};
        }
    }
};

TEST_F(LeggstrPieno, UnLavoroAPienaCapacitaSiRileggeUguale) {
    Leggi();
    EXPECT_EQ(NumPunti, kPunti);
    EXPECT_EQ(NumNodi, kNodi);
    EXPECT_EQ(NumAste, kAste);
    EXPECT_EQ(NumGusci, kGusci);
    EXPECT_EQ(NumElCont, kElCont);
    RiprendiPuntiENodi();
    RiprendiAste();
    RiprendiGusciEdElementi();
    generatore::ScriviLavoro(cartella + "/riletto", lavoro);
    for (const std::string file : {"STRUTTUR.STR", "Ingombri.tmp", "el_conti.tmp"})
        EXPECT_TRUE(Banco::Leggi(file) == Banco::Leggi("riletto/" + file)) << file;
}

// The same as searching the bars from the first one on.
TEST_F(LeggstrPieno, UnNomeDiAstaDiventaIlPostoDellaPrimaCheLoHa) {
    Leggi();
    std::mt19937 caso(11);
    const auto nome = [&] { return static_cast<std::int16_t>(caso() % 30000 - 9); };
    std::generate_n(NomeAsta.Dati(), kAste, nome);
    for (int k = 0; k < kElCont; ++k) AsteElCont(k, 0) = nome();
    const auto prima = AsteElCont;
    ConvertiAsteElCont();
    for (int k = 0; k < kElCont; ++k) {
        int posto = 0;
        while (posto < kAste && NomeAsta[posto] != prima(k, 0)) ++posto;
        const bool trovata = posto < kAste && NumAsteElCont[k] > 0;
        EXPECT_EQ(AsteElCont(k, 0), trovata ? posto : prima(k, 0)) << "element " << k;
    }
}

} // namespace telva::prove
