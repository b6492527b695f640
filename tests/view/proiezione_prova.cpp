#include "view/proiezione.h"

#include "sostegno/Banco.h"
#include "ui/controlli/FormTelva.h"

namespace telva::prove {

struct Proiezione : Banco {
    Proiezione() { Apri(Telaio()); }
};

TEST_F(Proiezione, GliIntervalliSonoGliEstremiInUnitaIntere) {
    PuntoX[0] = -2.5, PuntoX[2] = 202.5; // halves up
    PuntoY[0] = -0.5, PuntoY[8] = 2e20;
    PuntoZ[0] = -0.51;
    AggiornaIntervalli(4);
    EXPECT_EQ(FormTelva.IntX[0].Text(), "-2");
    EXPECT_EQ(FormTelva.IntX[1].Text(), "203");
    EXPECT_EQ(FormTelva.IntY[0].Text(), "0");
    EXPECT_EQ(FormTelva.IntY[1].Text(), "2e+20") << "short";
    EXPECT_EQ(FormTelva.IntZ[0].Text(), "-1");
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
