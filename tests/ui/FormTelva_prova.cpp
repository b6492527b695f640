// The main window: layout at every size, the two bars.
#include "sostegno/Banco.h"
#include "ui/controlli/FormTelva.h"

namespace telva::prove {
using Numeri = std::vector<double>;

struct FormTelvaProva : Banco {
    ModuloTelva &f = FormTelva;
    FormTelvaProva() { Apri(Telaio()); }
    Numeri Posti() {
        Numeri posti;
        for (const Controllo *c : f.controlli)
            for (double p : {c->Left(), c->Top(), c->Width(), c->Height()}) posti.push_back(p);
        return posti;
    }
};

TEST_F(FormTelvaProva, DisposizioneAOgniMisura) {
    Numeri prima = Posti();
    for (int k = 0; k < 24; ++k) { // sizes, side bar, tool bar
        const bool laterale = k / 6 % 2 == 0, icone = k < 12;
        const double w = std::array{5550, 15000, 6000, 5549, 9000, 99}[k % 6],
                     h = std::array{7120, 11400, 20000, 9000, 7119, 99}[k % 6];
        if (f.BarraLat.Checked != laterale) f.BarraLat.Click();
        if (f.BarraIcone.Checked != icone) f.BarraIcone.Click();
        if (k % 6 == 3) prima = Posti();
        f.Width = w, f.Height = h, f.Resize();
        EXPECT_EQ(Numeri({f.Width, f.Height}), Numeri({std::max(w, 5550.), std::max(h, 7120.)}));
        EXPECT_TRUE(k % 6 < 3 || Posti() == prima) << "below the minimum nothing is laid out";
        if (k % 6 > 2) continue;
        const double largo = w - (laterale ? 3024 : 124), alto = h - 2700 + (icone ? 0 : 400),
                     y = f.Disegno.Top + alto + 80, x = f.Disegno.Left + largo + 50,
                     fondo = y + f.StringaSel.Height + 50;
        const Numeri attesi{w - 180, largo, w - 4464, w - 5550, w - 2780, w - 6550, x,     x,
                            alto,    y,     y,        y,        y,        y + 100,  fondo, fondo},
            veri{f.FrameInput.Width, f.Disegno.Width,  f.StringaSel.Width, f.FrameCoord.Width,
                 f.Risposta.Left,    f.LabCoord.Left,  f.FrameSel.Left,    f.FrameAtt.Left,
                 f.Disegno.Height,   f.StringaSel.Top, f.Label5.Top,       f.Angolo[2].Top,
                 f.Label1[1].Top,    f.Label2[0].Top,  f.Frame2.Top,       f.FrameCoord.Top};
        EXPECT_EQ(veri, attesi) << k;
        EXPECT_TRUE(f.Toolbar1.Visible == icone && f.FrameSel.Visible == laterale);
        EXPECT_EQ(f.Disegno.Immagine().Altezza(), f.Disegno.AltezzaPixel()) << "redrawn";
    }
}

TEST_F(FormTelvaProva, LeBarreTornanoAlLoroPosto) {
    const Numeri prima = Posti();
    std::string visto; // how much four controls have moved up, and the side bar's tip
    for (int k = 0; k < 8; ++k) {
        const double alte = f.Disegno.Top + f.FrameInput.Top + f.FrameSel.Top + f.FrameAtt.Top;
        (k / 2 % 2 ? f.BarraLat : f.BarraIcone).Click();
        visto += std::to_string(static_cast<int>(alte - f.Disegno.Top - f.FrameInput.Top -
                                                 f.FrameSel.Top - f.FrameAtt.Top));
        visto += f.Toolbar1.Suggerimento("AggiungiBarraLat")[0];
        if (k > 3 && k % 2 == 0) f.Resize(); // as minimising and restoring does
        EXPECT_TRUE(k % 2 == 0 || Posti() == prima) << k;
    }
    EXPECT_EQ(visto, "1600A-1600A0A0T1600T-1600T0A0T");
}
} // namespace telva::prove
