// The pointer on the drawing and its agreement with the pixels. Which gesture follows which is
// proved by the random sequences.
#include "model/opzioni_cond.h"
#include "selection/selezione.h"
#include "selection/trappola.h"
#include "sostegno/Utente.h"
#include "ui/controlli/FormTelva.h"
#include "view/inquadra.h"

namespace telva::prove {

struct PuntatoreProva : Utente {
    ModuloTelva &f = FormTelva;
    RiquadroDisegno &d = FormTelva.Disegno;

    PuntatoreProva() {
        LavoroProva lavoro = Telaio();
        lavoro.nodi.push_back({.punto = 4, .nome = 10}); // where node 5 stands
        lavoro.punti[8] = {200.7, -0.2, 200};
        Apri(lavoro);
        Menu("VisAssi"); // off: the axes are nothing to be picked
        Opzioni[kOpzTestiElCont] = 0.0;
    }
    ~PuntatoreProva() override { f.dpi = 96; }

    float X(int px) const { return static_cast<float>(d.XDaPixel(px)); }
    float Y(int py) const { return static_cast<float>(d.YDaPixel(py)); }
    // Pixels of `prima` that are not found `dx` to the right and `dy` below, where both show them.
    int Diversi(const Superficie &prima, int dx, int dy) const {
        const Superficie &ora = d.Immagine();
        int diversi = 0;
        for (int y = std::max(0, -dy); y < ora.Altezza() - std::max(0, dy); ++y)
            for (int x = std::max(0, -dx); x < ora.Larghezza() - std::max(0, dx); ++x)
                diversi += prima.Leggi(x, y) != ora.Leggi(x + dx, y + dy);
        return diversi;
    }
};

// Views of the same drawing that have to agree with their pixels.
struct PuntatoreAlPixel : PuntatoreProva, ::testing::WithParamInterface<double> {
    void ConOgniVista(const std::function<void()> &prova) {
        f.dpi = GetParam();
        Mostra(Filtro::Gusci); // hatches stand still in the picture
        for (const char *angolo : {"0", "30", "-75"})
            for (const bool zoom : {false, true}) {
                Angolo(Asse::X, angolo, false);
                Angolo(Asse::Z, angolo);
                Menu("Ottimizza");
                if (zoom) {
                    Menu("ZoomIn");
                    Clic(41, -9);
                    Clic(210, 193);
                }
                prova();
            }
    }
};

INSTANTIATE_TEST_SUITE_P(Dpi, PuntatoreAlPixel, ::testing::Values(96, 144, 192),
                         ::testing::PrintToStringParamName());

TEST_P(PuntatoreAlPixel, CioCheEDisegnatoSiPrendeLi) {
    for (const bool nodi : {true, false}) {
        f.NodiAtt.Value = nodi;
        f.AsteAtt.Value = !nodi;
        Tipo(nodi ? kNodiTipo : kAsteTipo);
        OpzInt[1] = nodi ? OpzioneNumero(kOpzRaggioNodo) + 1.5 : 1.5;
        f.GusciAtt.Value = true;
        ConOgniVista([&] {
            for (int py = 0; py < d.AltezzaPixel(); py += 5)
                for (int px = 0; px < d.LarghezzaPixel(); ++px) {
                    if (d.Immagine().Leggi(px, py) == 0) continue;
                    bool fuori = false;
                    ASSERT_GE(SelezioneDiretta(X(px), Y(py)), 1) << px << ", " << py;
                    ASSERT_EQ(d.InPixel(X(px), Y(py), fuori), (Pixel{px, py}));
                }
        });
    }
}

TEST_P(PuntatoreAlPixel, IlDisegnoRestaSottoIlPuntatoreCheLoSposta) {
    ConOgniVista([&] {
        for (const bool dueClic : {false, true}) {
            const Superficie prima = d.Immagine();
            if (dueClic) {
                Menu("Sposta");
                Clic(X(300), Y(200));
                Muovi(X(293), Y(240));
                Clic(X(331), Y(183));
            } else {
                Trascina({{300, 200}, {293, 240}, {300, 200}, {331, 183}});
            }
            EXPECT_EQ(Diversi(prima, 31, -17), 0) << (dueClic ? "two clicks" : "middle button");
        }
    });
}

// In single precision, as the pointer comes, half of all views would lose their first pixels.
TEST_F(PuntatoreProva, UnRettangoloArrivaAlPrimoPixel) {
    for (int k = 0; k < 60; ++k) {
        ImpostaZoom(k / 7.0, k * 1.1, 90 + k * 3.3, 120);
        Menu("Aggiungi");
        Menu("Finestra");
        Menu("Ridis");
        Clic(X(300), Y(200));
        Muovi(X(0), Y(0));
        EXPECT_EQ(d.Shape.Left, X(0));
        EXPECT_EQ(d.Shape.Top, Y(0));
    }
}

TEST_F(PuntatoreProva, IlTrascinamentoFinisceAlRilascioOQuandoIlMouseSePerso) {
    for (const bool perso : {false, true}) {
        PremiCentrale(X(300), Y(200));
        MuoviPremuto(X(310), Y(220));
        perso ? PerdiIlMouse() : RilasciaCentrale();
        const Superficie prima = d.Immagine();
        MuoviPremuto(X(350), Y(260));
        EXPECT_EQ(Diversi(prima, 0, 0), 0);
    }
}

} // namespace telva::prove
