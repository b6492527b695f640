// The pointer on the drawing and its agreement with the pixels. Which gesture follows which is
// proved by the random sequences.
#include "model/opzioni_cond.h"
#include "selection/selezione.h"
#include "selection/trappola.h"
#include "sostegno/Composta.h"
#include "sostegno/Utente.h"
#include "startup/avvio.h"
#include "ui/controlli/FormTelva.h"
#include "view/inquadra.h"
#include "view/proiezione.h"

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
    // The pixel where a node is shown; its place in the table counts, from 0.
    Pixel Visto(int nodo) const {
        bool fuori = false;
        return d.InPixel(XNodo(nodo), YNodo(nodo), fuori);
    }
};

Pixel operator+(Pixel a, Pixel b) { return {a.x + b.x, a.y + b.y}; }

// Views of the same drawing that have to agree with their pixels.
struct PuntatoreAlPixel : PuntatoreProva, ::testing::WithParamInterface<double> {
    void ConOgniVista(const std::function<void()> &prova) {
        f.dpi = GetParam();
        Mostra(Filtro::Gusci); // hatches stand still in the picture
        for (const char *angolo : {"0", "30", "-75"})
            for (const bool zoom : {false, true}) {
                Angolo(Asse::X, angolo, kSenzaInvio);
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
        OpzInt[kOpzTrappola] = nodi ? OpzioneNumero(kOpzRaggioNodo) + 1.5 : 1.5;
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
            EXPECT_EQ(PixelDiversi(prima, d.Immagine(), 31, -17), 0)
                << (dueClic ? "two clicks" : "middle button");
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
        EXPECT_EQ(PixelDiversi(prima, d.Immagine()), 0);
    }
}

// With the button down something else changes the scale: the drag goes on from what is shown.
TEST_F(PuntatoreProva, IlTrascinamentoContinuaDaQuelloCheSiVede) {
    struct Caso {
        const char *che;
        std::function<void()> fai;
    };
    const Caso casi[] = {
        {"resize", // the box twice as large, in twips, 15 to the pixel: its aspect stays
         [&] {
             Ridimensiona(f.Width + 15 * d.LarghezzaPixel(), f.Height + 15 * d.AltezzaPixel());
         }},
        {"interval", [&] { Intervallo(Estremo::MaxX, "100"); }},
        {"angle", [&] { Angolo(Asse::X, "30"); }},
        {"side bar", [&] { Menu("BarraLat"); }},
        {"tool bar", [&] { Menu("BarraIcone"); }},
        {"wheel", [&] { Rotella(1); }},
        {"refused wheel",
         [&] {
             ImpostaZoom(0, 0, 0.11, 0.11);
             Menu("Ridis");
             Rotella(1);
         }},
    };
    for (const bool mosso : {false, true}) // before it the drag has moved the view, or not
        for (const Caso &caso : casi) {
            AzzeraProgramma();
            Apri(Telaio());
            PremiCentrale(X(200), Y(200));
            if (mosso) MuoviPremuto(X(210), Y(205));
            caso.fai();
            const Pixel prima = Visto(0);
            MuoviPremuto(X(210), Y(205));
            EXPECT_EQ(Visto(0), prima) << caso.che << (mosso ? ", moved" : "");
            MuoviPremuto(X(215), Y(195));
            EXPECT_EQ(Visto(0), (prima + Pixel{5, -10})) << caso.che << (mosso ? ", moved" : "");
        }
}

// A zoom window that is not shown, because it is flat or a wheel step was refused, moves nothing.
TEST_F(PuntatoreProva, LaVistaSiSpostaDaQuelloCheSiVede) {
    ImpostaZoom(50, 50, 50.001, 50.001);
    Menu("Ridis");
    Pixel prima = Visto(0);
    Menu("Sposta");
    Clic(X(300), Y(200));
    Clic(X(331), Y(183));
    EXPECT_EQ(Visto(0), (prima + Pixel{31, -17}));

    ImpostaZoom(0, 0, 0.11, 0.11);
    Menu("Ridis");
    prima = Visto(0);
    Rotella(1); // refused: the window would be too small
    EXPECT_EQ(Visto(0), prima);
    Tasto(kTastoDestra);
    EXPECT_EQ(Visto(0), (prima + Pixel{-d.LarghezzaPixel() / 10, 0}));
}

TEST_F(PuntatoreProva, IlPostoDiUnEvento) {
    struct Caso {
        const char *che;
        double posto, scala; // drawing units a pixel
        bool singola;
    };
    const double quanto = 32; // between two single numbers near 5e8
    const double accanto = 5e8 + quanto / 4;
    const Caso casi[] = {
        {.che = "near the origin", .posto = 0.1, .scala = 0.25, .singola = true},
        {.che = "the same, tiny pixels", .posto = 0.1, .scala = 1e-9, .singola = false},
        {.che = "far off", .posto = 5e8 + 7, .scala = 20, .singola = false},
        {.che = "a 64th of one", .posto = accanto, .scala = 16 * quanto, .singola = true},
        {.che = "a bit more", .posto = accanto, .scala = 15.9 * quanto, .singola = false},
    };
    for (const Caso &caso : casi) {
        d.Scale(0, 0, caso.scala * d.LarghezzaPixel(), -caso.scala * d.AltezzaPixel());
        const double atteso = caso.singola ? static_cast<float>(caso.posto) : caso.posto;
        EXPECT_EQ(d.XEvento(caso.posto), atteso) << caso.che;
        EXPECT_EQ(d.YEvento(-caso.posto), -atteso) << caso.che;
    }
}

} // namespace telva::prove
