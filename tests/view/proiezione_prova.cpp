#include "sostegno/Banco.h"
#include "ui/controlli/FormTelva.h"
#include "view/proiezione.h"
#include <cmath>
using namespace telva;
using namespace telva::prove;

TEST_F(Banco, AngoliEIntervalli) {
    Apri(Telaio());
    PuntoX[0] = 1, PuntoY[0] = 10, PuntoZ[0] = 100;
    const auto prova = [](std::string a, const char *b, const char *c, double u, double v) {
        FormTelva.Angolo[0].Text = a, FormTelva.Angolo[1].Text = b, FormTelva.Angolo[2].Text = c;
        ProiettaNodi();
        EXPECT_NEAR(std::hypot(XDis[0] - u, YDis[0] - v), 0, 1e-10) << a;
        EXPECT_NEAR(DirAsseX.y + 10 * DirAsseY.y + 100 * DirAsseZ.y, v, 1e-10);
    };
    prova(" 0 ", "0", "0", 1, 100);
    prova("0", "90", "0", 10, 100); // the second angle turns the other way
    prova("20", "-4e1", "+110.", 65.29475231219412, -9.81877271186541);
    prova("90", "0", "0", 1, 10);
    EXPECT_NEAR(MatRot[3][3], -1.0363e-13, 1e-16); // pi has twelve digits
    for (const std::string testo : {"", "12,5", "3O", "inf", "nan", "1e400", "."}) {
        prova(testo, "10", "10", 1, 10);
        EXPECT_TRUE(messaggi.empty()) << "a projection alone tells nothing";
        FormTelva.Ridis.Click();
        const Messaggio atteso{"Angolo di vista non valido: " + testo, Icona::Critica, "ERRORE"};
        EXPECT_EQ(messaggi, std::vector{atteso});
        EXPECT_EQ(FormTelva.Angolo[0].Text(), "90");
        messaggi.clear();
    }
    PuntoX[0] = -2.5, PuntoX[2] = 202.5, PuntoY[0] = -0.5, PuntoY[8] = 1e9, PuntoZ[0] = -0.51;
    unsigned char k = 0; // nothing (what start-up left), then axis by axis
    for (const std::string attesi :
         {"0 200 0 0 0 200 ", "-2 203 ? ? ? ? ", "? ? 0 1000000000 ? ? ", "? ? ? ? -1 200 "}) {
        std::string testi;
        AggiornaIntervalli(k++);
        for (auto *c : {&FormTelva.IntX, &FormTelva.IntY, &FormTelva.IntZ})
            for (CasellaTesto &casella : *c) testi += casella.Text() + " ", casella.Text = "?";
        EXPECT_EQ(testi, attesi);
    }
}
