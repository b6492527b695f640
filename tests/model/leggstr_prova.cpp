#include "model/leggstr_cond.h"
#include "model/struttura.h"
#include "sostegno/Banco.h"
#include "startup/direttori_cond.h"
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
         {Caso{.che = "the largest name of a node", .visto = NomeNodo[0], .atteso = 32000},
          {.che = "1.5 goes to the even one", .visto = PuntoNodo[1], .atteso = 2},
          {.che = "2.5 goes to the even one", .visto = TipoPtNodo[1], .atteso = 2},
          {.che = "3.5 goes to the even one", .visto = ColNodo[1], .atteso = 4},
          {.che = "name below zero", .visto = NomeNodo[1], .atteso = -4},
          {.che = "only the leading number", .visto = VincoloNodo[1], .atteso = 6},
          {.che = "second node of bar 0", .visto = NodoJAsta[0], .atteso = 0},
          {.che = "orientation of bar 0", .visto = OrientAsta[0], .atteso = 3},
          {.che = "datum 5 of bar 0, which is missing", .visto = DatoAsta5[0], .atteso = 0},
          {.che = "name of bar 1, which has none", .visto = NomeAsta[1], .atteso = 0},
          {.che = "name of bar 2", .visto = NomeAsta[2], .atteso = 9},
          {.che = "corner 3 of shell 0", .visto = NodiGuscio[0][3], .atteso = -1},
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
    PrimoPuntoContato = -1;
    LeggiTesto("release\n3\n-6000 -6000 -6000\n-7 -8 -9\n-4 -5 -6\n");
    EXPECT_EQ(PrimoPuntoContato, 1);
    EXPECT_EQ(XMax, -4) << "zero is not in it";
}

TEST_F(Leggstr, UnFileDiIngombriCortoOGuastoNonNeLasciaNessuno) {
    using Ingombri = std::array<double, 6>;
    const auto ingombri = [](int b) {
        return Ingombri{IngIX[b], IngIY[b], IngIZ[b], IngJX[b], IngJY[b], IngJZ[b]};
    };
    for (const char *file : {"1 2", "1 2 3 4 5 6\n7 x 9 10 11 12\n"}) {
        Scrivi("Ingombri.tmp", file);
        EXPECT_EQ(LeggiTesto(kStrana), 1) << file;
        for (int b = 0; b < 3; ++b) EXPECT_EQ(ingombri(b), Ingombri{}) << file << ", bar " << b;
    }
    Scrivi("Ingombri.tmp", "1,2,3\n4 5 6\n7 8 9 10 11 12");
    EXPECT_EQ(LeggiTesto(kStrana), 1);
    EXPECT_EQ(ingombri(0), (Ingombri{1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(ingombri(1), Ingombri{}) << "a bar without name has none";
    EXPECT_EQ(ingombri(2), (Ingombri{7, 8, 9, 10, 11, 12}));
}

TEST_F(Leggstr, UnFileInaccettabileSiSpiegaConRigaEMotivo) {
    struct Caso {
        const char *testo; // behind the first line
        int riga;
        const char *motivo;
    };
    const char *const corto = "il file finisce prima delle voci annunciate";
    const Caso casi[] = {
        {.testo = "20002\n", .riga = 2, .motivo = "troppi punti: 20002 (al massimo 20001)"},
        {.testo = "0\n20002\n", .riga = 3, .motivo = "troppi nodi: 20002 (al massimo 20001)"},
        {.testo = "0\n0\n20002\n", .riga = 4, .motivo = "troppe aste: 20002 (al massimo 20001)"},
        {.testo = "0\n0\n0\n16002", .riga = 5, .motivo = "troppi gusci: 16002 (al massimo 16001)"},
        {.testo = "0\n0\n0\n0\n0\n0\n0\n202\n",
         .riga = 9,
         .motivo = "troppi testi finali: 202 (al massimo 201)"},
        {.testo = "-40000\n", .riga = 2, .motivo = "numero fuori dai limiti di 16 bit: -40000"},
        {.testo = "0\n1\n0 40000 1\n5 0\n",
         .riga = 4,
         .motivo = "numero fuori dai limiti di 16 bit: 40000"},
        {.testo = "0\n0\n1\n0 0 7e20 1\n",
         .riga = 5,
         .motivo = "numero fuori dai limiti di 16 bit: 7e+20"},
        {.testo = "0\n1\n20001 1 1\n5 0\n0\n0\n",
         .riga = 4,
         .motivo = "punto 20001 fuori dalla tabella (0..20000)"},
        {.testo = "0\n0\n1\n-1 0 1 1\n5\n0\n",
         .riga = 5,
         .motivo = "nodo -1 fuori dalla tabella (0..20000)"},
        {.testo = "0\n0\n0\n1\n0 0 -1 -1\n1 1\n",
         .riga = 6,
         .motivo = "nodo -1 fuori dalla tabella (0..20000)"},
        {.testo = "1\n1,2\n", .riga = 4, .motivo = corto},
        {.testo = "0\n1\n0 1 1\n", .riga = 5, .motivo = corto},
        {.testo = "0\n0\n0\n1\n0 0 0 0", .riga = 7, .motivo = corto},
        {.testo = "0\n0\n0\n0\n3\nx\n", .riga = 8, .motivo = corto},
        {.testo = "0\n0\n0\n0\n0\n0\n0\n2\na\nb\nc\n", .riga = 13, .motivo = corto}};
    for (const auto &[testo, riga, motivo] : casi) {
        EXPECT_EQ(LeggiTesto("Release\n" + std::string(testo)), -1) << testo;
        EXPECT_EQ(codiceFine, 1) << testo;
        const std::string detto =
            "File " + DirLavoro + "\\STRUTTUR.STR, riga " + std::to_string(riga) + ": " + motivo;
        EXPECT_EQ(messaggi, (std::vector<Messaggio>{{detto, Gravita::Critica, "ERRORE"}})) << testo;
    }
}

TEST_F(Leggstr, UnaVersioneVecchiaChiudeIlProgramma) {
    EXPECT_EQ(LeggiTesto("4.0\nRelease"), -1);
    EXPECT_EQ(codiceFine, 1);
    EXPECT_EQ(messaggi,
              (std::vector<Messaggio>{
                  {"Versione 3.8 o precedente. Caricare e risalvare la struttura in 'Zorel'",
                   Gravita::Critica, "Attenzione"}}));
}

} // namespace telva::prove
