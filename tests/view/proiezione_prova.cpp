#include "sostegno/Banco.h"
#include "ui/controlli/FormTelva.h"
#include "view/proiezione.h"

namespace telva::prove {

struct Proiezione : Banco {
    Proiezione() { Apri(Telaio()); }
    void Angoli(const std::string &a, const std::string &b, const std::string &c) {
        FormTelva.Angolo[0].Text = a;
        FormTelva.Angolo[1].Text = b;
        FormTelva.Angolo[2].Text = c;
    }
};

TEST_F(Proiezione, UnPuntoSiProiettaConITreAngoli) {
    PuntoX[0] = 1, PuntoY[0] = 10, PuntoZ[0] = 100;
    struct Caso {
        const char *a, *b, *c;
        double x, y; // of point 0
    };
    for (const Caso &c : {
             Caso{.a = " 0 ", .b = "0", .c = "0", .x = 1, .y = 100},
             {.a = "90", .b = "0", .c = "0", .x = 1, .y = 10},
             {.a = "0", .b = "90", .c = "0", .x = 10, .y = 100}, // turns the other way
             {.a = "0", .b = "0", .c = "90", .x = 100, .y = -1},
             {.a = "20", .b = "-4e1", .c = "+110.", .x = 65.29475231219412, .y = -9.81877271186541},
         }) {
        SCOPED_TRACE(std::string(c.a) + ", " + c.b + ", " + c.c);
        Angoli(c.a, c.b, c.c);
        EXPECT_TRUE(ProiettaNodi());
        EXPECT_NEAR(XDis[0], c.x, 1e-9);
        EXPECT_NEAR(YDis[0], c.y, 1e-9);
        EXPECT_NEAR(DirAsseX.x + 10 * DirAsseY.x + 100 * DirAsseZ.x, c.x, 1e-9) << "axes";
        EXPECT_NEAR(DirAsseX.y + 10 * DirAsseY.y + 100 * DirAsseZ.y, c.y, 1e-9) << "axes";
    }
}

TEST_F(Proiezione, PiGrecoHaDodiciCifre) {
    Angoli("90", "0", "0");
    ProiettaNodi();
    EXPECT_NEAR(MatRot[3][3], -1.0363e-13, 1e-16);
}

TEST_F(Proiezione, UnAngoloCheNonEUnNumeroSiRifiutaELaVistaResta) {
    Angoli("90", "10", "20");
    FormTelva.Ridis.Click();
    const double y = YDis[8];
    for (const std::string testo : {"", "12,5,0", "3O", "inf", "nan", "1e400", ".", "-"}) {
        messaggi.clear();
        Angoli(testo, "10", "20");
        ProiettaNodi();
        EXPECT_TRUE(messaggi.empty()) << "a projection alone tells nothing";
        EXPECT_EQ(YDis[8], y) << '"' << testo << '"';
        FormTelva.Ridis.Click();
        const Messaggio atteso{"Angolo di vista non valido: " + testo +
                                   " (usare cifre, ad esempio 22.5)",
                               Icona::Critica, "ERRORE"};
        EXPECT_EQ(messaggi, std::vector{atteso});
        EXPECT_EQ(FormTelva.Angolo[0].Text(), "90") << "instead of \"" << testo << '"';
        EXPECT_EQ(YDis[8], y) << '"' << testo << '"';
    }
}

TEST_F(Proiezione, SiSaSeSiEProiettato) {
    EXPECT_TRUE(Proiettata());
    Angoli("90", "90", "0");
    ProiettaNodi();
    EXPECT_TRUE(Proiettata()) << "one axis is a point";
    AzzeraProiezione();
    EXPECT_FALSE(Proiettata());
}

TEST_F(Proiezione, GliIntervalliSonoGliEstremiInUnitaIntere) {
    PuntoX[0] = -2.5, PuntoX[2] = 202.5; // halves up
    PuntoY[0] = -0.5, PuntoY[8] = 1e9;
    PuntoZ[0] = -0.51;
    struct Caso {
        unsigned char quali;                // 1 = X, 2 = Y, 3 = Z, 4 = all
        std::array<const char *, 6> attesi; // "" = left alone
    };
    for (const Caso &c : {Caso{.quali = 0, .attesi = {"", "", "", "", "", ""}},
                          {.quali = 1, .attesi = {"-2", "203", "", "", "", ""}},
                          {.quali = 2, .attesi = {"", "", "0", "1000000000", "", ""}},
                          {.quali = 3, .attesi = {"", "", "", "", "-1", "200"}},
                          {.quali = 4, .attesi = {"-2", "203", "0", "1000000000", "-1", "200"}},
                          {.quali = 5, .attesi = {"", "", "", "", "", ""}}}) {
        std::vector<CasellaTesto *> caselle;
        for (auto *coppia : {&FormTelva.IntX, &FormTelva.IntY, &FormTelva.IntZ})
            for (CasellaTesto &casella : *coppia) {
                casella.Text = "";
                caselle.push_back(&casella);
            }
        AggiornaIntervalli(c.quali);
        for (std::size_t k = 0; k < 6; ++k)
            EXPECT_EQ(caselle[k]->Text(), c.attesi[k])
                << caselle[k]->NomeControllo() << " with " << int(c.quali);
    }
}

// Element 0 is passed over among bars and shells: its ends are nodes anyway.
TEST_F(Proiezione, GliIntervalliComprendonoGliEstremiDiAsteEGusci) {
    NumPunti = 11;
    PuntoX[9] = 500, PuntoX[10] = -500;
    PuntoNodo[9] = 9, PuntoNodo[10] = 10; // nodes that the file does not count
    NodoJAsta[11] = 9;
    NodiGuscio[3][2] = 10;
    AggiornaIntervalli(1);
    EXPECT_EQ(FormTelva.IntX[1].Text(), "500") << "of the last bar";
    EXPECT_EQ(FormTelva.IntX[0].Text(), "-500") << "of the last shell";
}

} // namespace telva::prove
