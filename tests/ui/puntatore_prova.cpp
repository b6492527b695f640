// The pointer on the drawing: its states, told in scripts, and its agreement with the pixels.
#include "model/opzioni_cond.h"
#include "selection/selezione.h"
#include "selection/trappola.h"
#include "sostegno/Recita.h"
#include "ui/controlli/FormTelva.h"
#include "view/inquadra.h"

namespace telva::prove {
struct PuntatoreProva : Banco {
    RiquadroDisegno &d = FormTelva.Disegno;
    PuntatoreProva() {
        LavoroProva lavoro = Telaio();
        lavoro.nodi.push_back({4, 10}); // where node 5 stands
        lavoro.punti[8] = {200.7, -0.2, 200};
        Apri(lavoro);
        FormTelva.VisAssi.Click();
        Opzioni[kOpzTestiElCont] = 0.0;
    }
    ~PuntatoreProva() override { FormTelva.dpi = 96; }
    float X(int px) { return static_cast<float>(d.XDaPixel(px)); }
    float Y(int py) { return static_cast<float>(d.YDaPixel(py)); }
};

TEST_F(PuntatoreProva, AlPixel) {
    FormTelva.GusciAtt.Premi(); // hatches stand still in the picture
    for (int k = 0; k < 72; ++k) {
        const bool zoom = k % 2, dueClic = k / 2 % 2, nodi = k / 4 % 2;
        FormTelva.dpi = 96 + k / 8 % 3 * 48;
        FormTelva.Angolo[0].Text = FormTelva.Angolo[2].Text = std::array{"0", "30", "-75"}[k / 24];
        FormTelva.NodiAtt.Value = nodi, FormTelva.AsteAtt.Value = !nodi;
        FormTelva.OptElem[nodi ? kNodiTipo : kAsteTipo].Seleziona();
        OpzInt[1] = nodi ? OpzioneNumero(kOpzRaggioNodo) + 1.5 : 1.5;
        Recita(messaggi, zoom ? "Ottimizza ZoomIn s41,-9 s210,193" : "Ottimizza");
        for (int py = 0; py < d.AltezzaPixel(); py += 5) // what is drawn can be picked there
            for (int px = 0; px < d.LarghezzaPixel(); ++px) {
                bool fuori = false;
                if (d.Immagine().Leggi(px, py) == 0) continue;
                ASSERT_GE(SelezioneDiretta(X(px), Y(py)), 1) << k << ": " << px << " " << py;
                ASSERT_EQ(d.InPixel(X(px), Y(py), fuori), (Pixel{px, py}));
            }
        const Superficie prima = d.Immagine();
        if (dueClic) FormTelva.Sposta.Click();
        d.MouseDown(dueClic ? 1 : 4, 0, X(300), Y(200));
        for (const auto &[px, py] : {std::pair{293, 240}, {300, 200}, {331, 183}})
            d.MouseMove(dueClic ? 0 : 4, 0, X(px), Y(py));
        dueClic ? d.MouseDown(1, 0, X(331), Y(183)) : d.MouseUp(4, 0, X(331), Y(183));
        int diversi = 0;
        for (int py = 17; py < d.AltezzaPixel(); ++py)
            for (int px = 0; px + 31 < d.LarghezzaPixel(); ++px)
                diversi += prima.Leggi(px, py) != d.Immagine().Leggi(px + 31, py - 17);
        EXPECT_EQ(diversi, 0) << k;
    }
}

TEST_F(PuntatoreProva, DaQualunqueVista) {
    ModuloTelva &f = FormTelva;
    f.GusciAtt.Premi();
    const auto uguali = [&](const Superficie &prima, int scarto) {
        int diversi = 0;
        for (int py = 0; py < d.AltezzaPixel(); py += 3)
            for (int px = 0; px + scarto < d.LarghezzaPixel(); ++px)
                diversi += prima.Leggi(px + scarto, py) != d.Immagine().Leggi(px, py);
        return diversi == 0;
    };
    for (int k = 0; k < 60; ++k) { // a rectangle reaches the corner pixel
        ImpostaZoom(k / 7.0, k * 1.1, 90 + k * 3.3, 120);
        Recita(messaggi, "Aggiungi Finestra Ridis");
        d.MouseDown(1, 0, X(300), Y(200)), d.MouseMove(0, 0, X(0), Y(0));
        EXPECT_TRUE(d.Shape.Left == X(0) && d.Shape.Top == Y(0)) << k;
        // A drag goes on from what wheel and commands show; the keys move by whole pixels.
        d.MouseDown(4, 0, X(300), Y(200)), d.MouseMove(4, 0, X(310), Y(220));
        k % 2 ? f.Rotella(k % 3 ? 2 : -1) : f.Ottimizza.Click();
        const Superficie prima = d.Immagine();
        d.MouseMove(4, 0, X(310), Y(220)), d.MouseUp(4, 0, 0, 0);
        EXPECT_TRUE(uguali(prima, 0)) << k;
        EXPECT_TRUE(f.KeyDown(39) && f.KeyDown(40) && f.KeyDown(38) && !f.KeyDown(65));
        EXPECT_TRUE(uguali(prima, d.LarghezzaPixel() / 10)) << k;
        EXPECT_TRUE(f.KeyDown(37) && uguali(prima, 0)) << k;
    }
    for (int n = 0; n < 60; ++n) f.KeyDown(187); // the last steps in are refused
    const double sinistra = d.ScaleLeft, larghezza = d.ScaleWidth;
    f.KeyDown(39);
    EXPECT_NEAR(d.ScaleLeft - sinistra, larghezza / 10, larghezza / 500);
    Recita(messaggi, "Interrompi Ottimizza Aggiungi s-5,-5 RimTutto #1110001r s210,210 #1400000 "
                     ">1,1-10 Sposta s9,9 c8,8 #1401010l");
}
} // namespace telva::prove
