#include "model/struttura.h"
#include "model/tabelle_cond.h"
#include "platform/citazione.h"
#include "sostegno/Banco.h"
#include "startup/basCommon_cond.h"
#include "startup/direttori_cond.h"
#include <functional>

namespace telva::prove {

struct Tabelle : Banco {
    Tabelle() {
        DirLavoro = RadiceLunga();
        CaricaMessaggi();
    }
    static std::string Ripetuta(int volte, const std::string &scheda) {
        std::string testo = std::to_string(volte);
        for (int n = 0; n < volte; ++n) testo += "\n" + scheda;
        return testo;
    }
};

struct Elenco {
    const char *file;
    std::function<std::string()> leggi;
    const std::int16_t &letti;
    int limite;
    const char *scheda, *troppe;
};

TEST_F(Tabelle, OltreIlLimiteSiAvvisaESiLeggonoLePrime) {
    const Elenco kElenchi[] = {{.file = "spessori",
                                .leggi = LeggiSpessori,
                                .letti = NumSpessori,
                                .limite = 100,
                                .scheda = "9 7 \"x y\" 2.5 z",
                                .troppe = " Troppe schede di spessore "},
                               {.file = "sezioni_",
                                .leggi = LeggiSezioni,
                                .letti = NumSezioni,
                                .limite = 99,
                                .scheda = "1,2\n7\n1 2 3\n4 5 6,7 8 9,0 \"x,y\" 0",
                                .troppe = " Troppe schede di sezione "},
                               {.file = "el_conti.tmp",
                                .leggi = LeggiElCont,
                                .letti = NumElCont,
                                .limite = 2000,
                                .scheda = "7 0 \"a, b\"\n0",
                                .troppe = " Troppi elementi continui "}};
    for (const Elenco &e : kElenchi) {
        messaggi.clear();
        EXPECT_EQ(e.leggi(),
                  " Impossibile leggere il file " + CitaPercorso(DirLavoro + "\\" + e.file));
        for (const int numero : {0, 1, e.limite}) {
            Scrivi(e.file, Ripetuta(numero, e.scheda));
            EXPECT_EQ(e.leggi(), "") << e.file;
            EXPECT_EQ(e.letti, numero) << e.file;
            EXPECT_TRUE(messaggi.empty()) << e.file << " with " << numero;
        }
        Scrivi(e.file, Ripetuta(e.limite + 1, e.scheda));
        EXPECT_EQ(e.leggi(), "") << e.file;
        EXPECT_EQ(e.letti, e.limite) << e.file;
        EXPECT_EQ(messaggi, (std::vector<Messaggio>{{e.troppe, Gravita::Critica, "Problema"}}));
    }
    EXPECT_EQ(MatSpessore[99], 7);
    EXPECT_EQ(ValSpessore[99], 2.5);
    EXPECT_EQ(MatSezione[98], 7);
    EXPECT_EQ(NumeroElCont[1999], 7);
    EXPECT_EQ(NomeElCont[1999], "a, b");
}

TEST_F(Tabelle, UnValoreErratoRestaComEra) {
    Scrivi("spessori", "2\n1 6 0 2.5 0\n1 4 0 2 0\n");
    LeggiSpessori();
    Scrivi("spessori", "2\n1 x 0 y 0\n2 40000 0 3 0\n");
    LeggiSpessori();
    EXPECT_EQ(MatSpessore[0], 6) << "x";
    EXPECT_EQ(ValSpessore[0], 2.5) << "y";
    EXPECT_EQ(MatSpessore[1], 4) << "40000";
    EXPECT_EQ(ValSpessore[1], 3);
}

TEST_F(Tabelle, IlConteggioSiArrotondaENonScendeSottoZero) {
    for (const auto &[conteggio, letti] : {std::pair{"1.5", 2}, {"2.5", 2}, {"-3", 0}}) {
        Scrivi("spessori", std::string(conteggio) + "\n1 6 0 2 0\n1 4 0 2 0\n1 4 0 2 0\n");
        LeggiSpessori();
        EXPECT_EQ(NumSpessori, letti) << conteggio;
    }
}

TEST_F(Tabelle, UnElementoContinuoHaNumeroNomeEAste) {
    Scrivi("el_conti.tmp", "2\r\n10 4 \"Trave, bassa\"\r\n3 7 8 9\r\n20 5 citt\xE0\n-1\n");
    EXPECT_EQ(LeggiElCont(), "");
    EXPECT_EQ(NumElCont, 2);
    EXPECT_EQ(NumeroElCont[0], 10);
    EXPECT_EQ(DatoElCont2[0], 4);
    EXPECT_EQ(NomeElCont[0], "Trave, bassa");
    EXPECT_EQ(NumAsteElCont[0], 3);
    for (int j = 0; j < 3; ++j) EXPECT_EQ(AsteElCont(0, j), 7 + j) << "bar " << j;
    EXPECT_EQ(NomeElCont[1], "citt\u00E0");
    EXPECT_EQ(NumAsteElCont[1], 0) << "a count below zero";
}

TEST_F(Tabelle, UnElementoContinuoErratoSiSpiegaConRigaEMotivo) {
    struct Caso {
        const char *file;
        int riga;
        const char *motivo;
    };
    const char *const errato = "numero intero errato",
                      *const troppe = "troppe aste nell'elemento continuo: 301 (al massimo 300)",
                      *const corto = "il file finisce prima delle voci annunciate";
    for (const Caso &c : {Caso{.file = "", .riga = 1, .motivo = errato},
                          {.file = "x", .riga = 1, .motivo = errato},
                          {.file = "1\nx 0 a\n0\n", .riga = 2, .motivo = errato},
                          {.file = "1\n1 0 a\n1\n40000", .riga = 4, .motivo = errato},
                          {.file = "1\n1 0 a\n301", .riga = 3, .motivo = troppe},
                          {.file = "1\n1 0", .riga = 3, .motivo = corto},
                          {.file = "1\n1 0 a\n2\n5\n", .riga = 5, .motivo = corto}}) {
        messaggi.clear();
        Scrivi("el_conti.tmp", c.file);
        EXPECT_FALSE(Esegui([] { LeggiElCont(); })) << '"' << c.file << '"';
        EXPECT_EQ(codiceFine, 1) << '"' << c.file << '"';
        const std::string testo = "File " + CitaPercorso(DirLavoro + "\\el_conti.tmp") + ", riga " +
                                  std::to_string(c.riga) + ": " + c.motivo;
        EXPECT_EQ(messaggi, (std::vector<Messaggio>{{testo, Gravita::Critica, "ERRORE"}}));
    }
}

} // namespace telva::prove
