// Drags that something else moves, the places of events, typed numbers. What the commands of the
// view show is known to the random sequences.
#include "model/opzioni_cond.h"
#include "model/struttura.h"
#include "sostegno/Utente.h"
#include "startup/avvio.h"
#include "ui/controlli/FormOpt.h"
#include "ui/controlli/FormTelva.h"
#include "view/inquadra.h"
#include "view/proiezione.h"

namespace telva::prove {

struct VistaProva : Utente {
    RiquadroDisegno &d = FormTelva.Disegno;

    // The pixel where a node is shown; its place in the table counts, from 0.
    Pixel Visto(int nodo) const {
        bool fuori = false;
        return d.InPixel(XNodo(nodo), YNodo(nodo), fuori);
    }
    double X(int px) const { return d.XEvento(d.XDaPixel(px)); }
    double Y(int py) const { return d.YEvento(d.YDaPixel(py)); }
};

Pixel operator+(Pixel a, Pixel b) { return {a.x + b.x, a.y + b.y}; }

// With the button down something else changes the scale: the drag goes on from what is shown.
TEST_F(VistaProva, IlTrascinamentoContinuaDaQuelloCheSiVede) {
    struct Caso {
        const char *che;
        std::function<void()> fai;
    };
    const Caso casi[] = {
        {"resize", [&] { Ridimensiona(9000, 8000); }},
        {"interval", [&] { Intervallo(Estremo::MaxX, "100"); }},
        {"angle", [&] { Angolo(Asse::X, "30"); }},
        {"side bar", [&] { Menu("BarraLat"); }},
        {"tool bar", [&] { Menu("BarraIcone"); }},
        {"wheel", [&] { Rotella(1); }},
    };
    for (const bool mosso : {false, true}) // before it the drag has moved the view, or not
        for (const Caso &caso : casi) {
            Apri(Telaio());
            PremiCentrale(X(200), Y(200));
            if (mosso) MuoviPremuto(X(210), Y(205));
            caso.fai();
            const Pixel prima = Visto(0);
            MuoviPremuto(X(210), Y(205));
            EXPECT_EQ(Visto(0), prima) << caso.che << (mosso ? ", moved" : "");
            MuoviPremuto(X(215), Y(195));
            EXPECT_EQ(Visto(0), prima + Pixel(5, -10)) << caso.che << (mosso ? ", moved" : "");
            AzzeraProgramma();
        }
}

TEST_F(VistaProva, IlPostoDiUnEvento) {
    struct Caso {
        const char *che;
        double posto, unitaPerPixel;
        bool singola;
    };
    const double quanto = 32; // between two single numbers near 5e8
    const Caso casi[] = {
        {"near the origin", 0.1, 0.25, true},
        {"near the origin, tiny pixels", 0.1, 1e-9, false},
        {"far off, pixels of kilometres", 5e8 + 7, 1000, true},
        {"far off", 5e8 + 7, 20, false},
        {"a 64th of a pixel", 5e8 + quanto / 4, quanto / 4 * 64, true},
        {"more than a 64th", 5e8 + quanto / 4, quanto / 4 * 63.9, false},
        {"no single number at all", 1e300, 1e290, false},
    };
    for (const Caso &caso : casi) {
        d.Scale(0, 0, caso.unitaPerPixel * d.LarghezzaPixel(),
                -caso.unitaPerPixel * d.AltezzaPixel());
        const double atteso = caso.singola ? static_cast<float>(caso.posto) : caso.posto;
        EXPECT_EQ(d.XEvento(caso.posto), atteso) << caso.che;
        EXPECT_EQ(d.YEvento(-caso.posto), -atteso) << caso.che;
    }
}

TEST_F(VistaProva, SoloITastiDellaVistaSonoSuoi) {
    EXPECT_TRUE(FormTelva.KeyDown(39)); // an arrow
    EXPECT_FALSE(FormTelva.KeyDown('A'));
}

// --- typed numbers

TEST_F(VistaProva, LaVirgolaEUnPunto) {
    Apri(Telaio());
    Intervallo(Estremo::MaxX, "99,4"); // half a unit more is still below 100
    EXPECT_EQ(Detto(), "");
    EXPECT_EQ(AttNodo[1], 0);

    Menu("Rappresentazione");
    FormOpt.Raggio.Text = "0,5";
    FormOpt.Salva.Click();
    EXPECT_EQ(OpzioneNumero(kOpzRaggioNodo), 0.5);
    Trappola("7,9");
    EXPECT_EQ(OpzInt[1], 7);
}

TEST_F(VistaProva, NumeriRifiutatiSenzaStruttura) {
    Installa();
    ScriviLavoro(Telaio());
    Cancella("lavori/prova1/STRUTTUR.STR");
    Avvia();
    EXPECT_EQ(Detto(), "Problema: Errore nella lettura della struttura");
    Angolo(Asse::X, "abc");
    EXPECT_EQ(Detto(), "ERRORE: Angolo di vista non valido: abc (usare cifre, ad esempio 22.5)");
    EXPECT_EQ(FormTelva.Angolo[0].Text(), "30");
    EXPECT_EQ(FormTelva.fuoco, &FormTelva.Angolo[0]) << "ready to be corrected";
    Intervallo(Estremo::MinX, "abc");
    EXPECT_EQ(Detto(), "ERRORE: Intervallo di coordinate non valido: abc");
    EXPECT_EQ(FormTelva.IntX[0].Text(), "");
    EXPECT_EQ(FormTelva.fuoco, &FormTelva.IntX[0]);
}

} // namespace telva::prove
