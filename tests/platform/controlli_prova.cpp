#include "platform/controlli.h"
#include <gtest/gtest.h>

namespace telva::prove {
namespace {

struct PariCheConta : Pari {
    int cambi = 0;
    void Cambia(Controllo &, Campo) override { ++cambi; }
};

} // namespace

TEST(Controlli, ITwipDiventanoPixelInteri) {
    struct Caso {
        double twip, dpi;
        int pixel;
    };
    for (const Caso &c : {Caso{.twip = 1440, .dpi = 96, .pixel = 96},
                          {.twip = 22.4, .dpi = 96, .pixel = 1},
                          {.twip = 22.5, .dpi = 96, .pixel = 2}, // halves up
                          {.twip = -22.5, .dpi = 96, .pixel = -1},
                          {.twip = 1440, .dpi = 144, .pixel = 144}})
        EXPECT_EQ(APixel(c.twip, c.dpi), c.pixel) << c.twip << " twips at " << c.dpi;
    EXPECT_EQ(ATwip(144, 144), 1440);
}

TEST(Controlli, PostoVisibilitaEAbilitazioneSonoAncheDelGenitore) {
    Modulo modulo{"m"};
    Cornice cornice{&modulo, "cornice"};
    Etichetta etichetta{&modulo, "etichetta", &cornice};
    cornice.Posiziona(100, 200, 50, 60);
    etichetta.Posiziona(10, 20, 30, 40);
    EXPECT_EQ(etichetta.LeftAssoluto(), 110);
    EXPECT_EQ(etichetta.TopAssoluto(), 220);
    EXPECT_EQ(etichetta.Width, 30);
    EXPECT_EQ(etichetta.Height, 40);
    EXPECT_TRUE(etichetta.VisibileDavvero());
    EXPECT_TRUE(etichetta.AbilitatoDavvero());
    cornice.Visible = cornice.Enabled = false;
    EXPECT_FALSE(etichetta.VisibileDavvero());
    EXPECT_FALSE(etichetta.AbilitatoDavvero());
    cornice.Visible = cornice.Enabled = true;
    etichetta.Visible = etichetta.Enabled = false;
    EXPECT_FALSE(etichetta.VisibileDavvero());
    EXPECT_FALSE(etichetta.AbilitatoDavvero());
}

TEST(Controlli, IlPariSenteSoloICambiamenti) {
    Modulo modulo{"m"};
    CasellaTesto casella{&modulo, "casella"};
    PariCheConta pari;
    casella.Text = "prima che si veda";
    casella.pari = &pari;
    casella.Text = "a";
    EXPECT_EQ(pari.cambi, 1);
    casella.Text = "a";
    EXPECT_EQ(pari.cambi, 1) << "the same text";
    casella.SetFocus();
    EXPECT_EQ(pari.cambi, 2);
    EXPECT_EQ(modulo.fuoco, &casella);
}

TEST(Controlli, UnOpzioneSceltaTogliLeAltreDellaSuaCornice) {
    Modulo modulo{"m"};
    Cornice cornice{&modulo, "cornice"};
    Schiera<BottoneOpzione, 3> dentro{&modulo, "dentro", &cornice};
    BottoneOpzione fuori{&modulo, "fuori"};
    int scelte = 0;
    dentro[1].Click = [&] { ++scelte; };
    fuori.Value = dentro[0].Value = true;
    dentro[1].Seleziona();
    EXPECT_FALSE(dentro[0].Value);
    EXPECT_TRUE(dentro[1].Value);
    EXPECT_TRUE(fuori.Value) << "of another frame";
    EXPECT_EQ(scelte, 1);
    EXPECT_EQ(dentro[2].NomeControllo(), "dentro(2)");
}

TEST(Controlli, UnaSpuntaPremutaCambiaPoiAvvisa) {
    Modulo modulo{"m"};
    CasellaSpunta spunta{&modulo, "spunta"};
    bool vista = false;
    spunta.Click = [&] { vista = spunta.Value; };
    spunta.Premi();
    EXPECT_TRUE(vista) << "the tick had changed";
    spunta.Premi();
    EXPECT_FALSE(spunta.Value);
}

TEST(Controlli, LaRotellaRaccoglieGliScattiInteri) {
    struct Passo {
        int delta, scatti;
    };
    RaccoltaRotella rotella;
    for (const Passo &p : {Passo{.delta = 120, .scatti = 1},
                           {.delta = 60, .scatti = 0},
                           {.delta = 60, .scatti = 1},
                           {.delta = 100, .scatti = 0},
                           {.delta = -119, .scatti = 0}, // turned round: the rest is dropped
                           {.delta = -1, .scatti = -1},
                           {.delta = -360, .scatti = -3}})
        EXPECT_EQ(rotella.Aggiungi(p.delta), p.scatti) << "delta " << p.delta;
}

TEST(Controlli, UnaVoceDiMenuNasceAbilitataESenzaSpunta) {
    Modulo modulo{"m"};
    VoceMenu voce{&modulo, "voce"};
    EXPECT_FALSE(voce.Checked);
    EXPECT_TRUE(voce.Enabled);
    EXPECT_EQ(modulo.voci, std::vector<VoceMenu *>{&voce});
    EXPECT_TRUE(modulo.controlli.empty()) << "it has no place in the window";
}

TEST(Controlli, UnaFinestraChiusaLoEUnaVoltaSola) {
    Modulo modulo{"m"};
    int chiusure = 0;
    modulo.Unload = [&] { ++chiusure; };
    modulo.Chiudi();
    EXPECT_EQ(chiusure, 0) << "not shown yet";
    modulo.Mostra();
    EXPECT_TRUE(modulo.Mostrata());
    modulo.Chiudi();
    modulo.Chiudi();
    EXPECT_EQ(chiusure, 1);
    EXPECT_FALSE(modulo.Mostrata());
}

} // namespace telva::prove
