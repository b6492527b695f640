// The pointer on the drawing and its agreement with the pixels. Which gesture follows which is
// proved by the random sequences.
#include "model/opzioni_cond.h"
#include "selection/selezione.h"
#include "selection/trappola.h"
#include "sostegno/Utente.h"
#include "ui/controlli/FormTelva.h"
#include "view/inquadra.h"

namespace telva::prove {

constexpr int kSinistra = 37, kSu = 38, kDestra = 39, kGiu = 40, kPiu = 187, kMeno = 189,
              kPiuCifre = 107, kMenoCifre = 109;

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

TEST_F(PuntatoreProva, UnTrascinamentoContinuaDaCioCheRotellaEComandiMostrano) {
    const std::function<void()> inMezzo[] = {[&] { Rotella(2); }, [&] { Rotella(-1); },
                                             [&] { Menu("Ottimizza"); }};
    for (int k = 0; k < 12; ++k)
        for (const auto &comando : inMezzo) {
            ImpostaZoom(k / 7.0, k * 1.1, 90 + k * 3.3, 120);
            Menu("Ridis");
            PremiCentrale(X(300), Y(200));
            MuoviPremuto(X(310), Y(220));
            comando();
            const Superficie prima = d.Immagine();
            MuoviPremuto(X(310), Y(220));
            EXPECT_EQ(Diversi(prima, 0, 0), 0) << "the pointer has not moved";
            RilasciaCentrale();
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

TEST_F(PuntatoreProva, IlDoppioClicCentraleMostraTutto) {
    const double intera = d.ScaleWidth;
    Rotella(3);
    ASSERT_LT(d.ScaleWidth, intera);
    Clic(X(300), Y(200));
    DoppioClic();
    EXPECT_LT(d.ScaleWidth, intera) << "only that of the middle button";
    PremiCentrale(X(300), Y(200));
    DoppioClic();
    EXPECT_EQ(d.ScaleWidth, intera);
}

TEST_F(PuntatoreProva, LeFrecceSpostanoDiUnDecimoInPixelInteri) {
    struct Caso {
        int tasto, ritorno;
        int dx, dy; // tenths of the box by which the picture moves
    };
    const Caso casi[] = {{.tasto = kDestra, .ritorno = kSinistra, .dx = -1, .dy = 0},
                         {.tasto = kSinistra, .ritorno = kDestra, .dx = 1, .dy = 0},
                         {.tasto = kGiu, .ritorno = kSu, .dx = 0, .dy = -1},
                         {.tasto = kSu, .ritorno = kGiu, .dx = 0, .dy = 1}};
    Mostra(Filtro::Gusci);
    for (int k = 0; k < 12; ++k)
        for (const Caso &c : casi) {
            ImpostaZoom(k / 7.0, k * 1.1, 90 + k * 3.3, 120);
            Menu("Ridis");
            const Superficie prima = d.Immagine();
            EXPECT_TRUE(Tasto(c.tasto));
            EXPECT_EQ(
                Diversi(prima, c.dx * (d.LarghezzaPixel() / 10), c.dy * (d.AltezzaPixel() / 10)),
                0);
            EXPECT_TRUE(Tasto(c.ritorno));
            EXPECT_EQ(Diversi(prima, 0, 0), 0);
        }
}

TEST_F(PuntatoreProva, PiuEMenoSonoPassiDellaRotella) {
    for (const auto &[piu, meno] : {std::pair{kPiu, kMeno}, {kPiuCifre, kMenoCifre}}) {
        const double prima = d.ScaleWidth;
        EXPECT_TRUE(Tasto(piu));
        EXPECT_NEAR(d.ScaleWidth, prima * 0.8, 1e-6 * prima);
        EXPECT_TRUE(Tasto(meno));
        EXPECT_NEAR(d.ScaleWidth, prima * 0.96, 1e-6 * prima);
        Menu("Ottimizza");
    }
    EXPECT_FALSE(Tasto('A')) << "not a key of the view";
}

// The last steps in are refused; the keys then move what is shown.
TEST_F(PuntatoreProva, AlMassimoIngrandimentoLeFrecceSpostanoAncora) {
    for (int n = 0; n < 60; ++n) Tasto(kPiu);
    const double sinistra = d.ScaleLeft, larghezza = d.ScaleWidth;
    EXPECT_TRUE(Tasto(kDestra));
    EXPECT_NEAR(d.ScaleLeft - sinistra, larghezza / 10, larghezza / 500);
}

TEST_F(PuntatoreProva, UnoSpostamentoADueClicResisteAgliAltriTasti) {
    Menu("Aggiungi");
    Menu("Sposta");
    Clic(9, 9);
    ClicDestro(8, 8);
    PremiCentrale(8, 8);
    EXPECT_EQ(Gesto(), "SpostaInCorso ModoSposta");
    EXPECT_EQ(Elastici(), "linea");
    RilasciaCentrale();
    Clic(20, 20);
    EXPECT_EQ(Gesto(), "");
    EXPECT_EQ(Elastici(), "");
    EXPECT_EQ(SottoFunzione(), "Selezione diretta");
}

TEST_F(PuntatoreProva, RimuoviTuttoLasciaApertaLaFinestra) {
    Menu("Aggiungi");
    Clic(-5, -5);
    Menu("RimTutto");
    EXPECT_EQ(Gesto(), "PrimoAngolo FinestraAutomatica");
    Clic(210, 210);
    EXPECT_EQ(Lista(), "1,1-10");
    EXPECT_EQ(SottoFunzione(), "Selezione diretta");
}

TEST_F(PuntatoreProva, SenzaFunzioneUnClicNonPrendeNulla) {
    Clic(0, 0);
    EXPECT_EQ(Lista(), "");
    EXPECT_EQ(Gesto(), "");
}

TEST_F(PuntatoreProva, LeCoordinateSonoQuelleDelNodoSottoIlPuntatore) {
    Muovi(100, 0);
    EXPECT_EQ(Coordinate(), "100, 0, 0 [N2]");
    Muovi(200.7F, 200);
    EXPECT_EQ(Coordinate(), "200, -1, 200 [N9]") << "whole numbers, downwards";
    Muovi(50, 50);
    EXPECT_EQ(Coordinate(), "");
    Muovi(100, 0);
    Menu("VisCoord");
    EXPECT_EQ(Coordinate(), "");
    EXPECT_FALSE(f.FrameCoord.Visible);
    Muovi(100, 0);
    EXPECT_EQ(Coordinate(), "");
    Menu("VisCoord");
    EXPECT_TRUE(f.FrameCoord.Visible);
}

} // namespace telva::prove
