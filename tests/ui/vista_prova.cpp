// What the view commands, the wheel, the drags and the keys show: also of a structure without area,
// and far from the origin.
#include "model/opzioni_cond.h"
#include "model/struttura.h"
#include "sostegno/Utente.h"
#include "startup/avvio.h"
#include "ui/controlli/FormOpt.h"
#include "ui/controlli/FormTelva.h"
#include "view/inquadra.h"
#include "view/proiezione.h"

#include <cmath>
#include <ostream>

namespace telva::prove {

constexpr int kFrecciaDestra = 39;

struct VistaProva : Utente {
    RiquadroDisegno &d = FormTelva.Disegno;

    // The pixel where a node is shown; its place in the table counts, from 0.
    Pixel Visto(int nodo) const {
        bool fuori = false;
        return d.InPixel(XNodo(nodo), YNodo(nodo), fuori);
    }
    bool TuttoInVista() const {
        for (int i = 0; i < NumNodi; ++i) {
            const Pixel p = Visto(i);
            if (p.x < 0 || p.y < 0 || p.x >= d.LarghezzaPixel() || p.y >= d.AltezzaPixel())
                return false;
        }
        return true;
    }
    double X(int px) const { return d.XEvento(d.XDaPixel(px)); }
    double Y(int py) const { return d.YEvento(d.YDaPixel(py)); }
    void ClicPixel(int px, int py) { Clic(X(px), Y(py)); }
    void MostraFinestra(const FinestraDisegno &f) {
        FinestraZoom = f;
        Menu("Ridis");
    }
};

Pixel operator+(Pixel a, Pixel b) { return {a.x + b.x, a.y + b.y}; }

// One column, seen from anywhere.
LavoroProva Colonna() {
    LavoroProva l;
    l.punti = {{50, 0, 0}, {50, 0, 300}};
    l.nodi = {{.punto = 0, .nome = 1}, {.punto = 1, .nome = 2}};
    l.aste = {{.i = 0, .j = 1, .nome = 1}};
    return l;
}

TEST_F(VistaProva, LaColonnaSiMuove) {
    Apri(Colonna());
    EXPECT_TRUE(TuttoInVista());
    Pixel piede = Visto(0);
    Trascina({{100, 100}, {130, 85}});
    EXPECT_EQ(Visto(0), piede + Pixel(30, -15)) << "a drag";

    piede = Visto(0);
    Menu("Sposta");
    ClicPixel(100, 100);
    ClicPixel(120, 140);
    EXPECT_EQ(Visto(0), piede + Pixel(20, 40)) << "a pan by two clicks";

    piede = Visto(0);
    Tasto(kFrecciaDestra);
    EXPECT_EQ(Visto(0), piede + Pixel(-(d.LarghezzaPixel() / 10), 0)) << "a key";

    const double unita = d.UnitaPerPixel();
    Rotella(1);
    EXPECT_NEAR(d.UnitaPerPixel(), unita * 0.8, unita * 1e-9) << "the wheel";
}

TEST_F(VistaProva, FinestraVistaEQuellaMostrata) {
    Apri(Telaio());
    const FinestraDisegno prima = FinestraVista;
    const double unita = d.UnitaPerPixel();
    Intervallo(Estremo::MaxZ, "0"); // one row: no area, the scale stays
    EXPECT_EQ(FinestraVista, prima);
    EXPECT_EQ(d.UnitaPerPixel(), unita);
    Rotella(1);
    Tutto(Asse::Z);
    EXPECT_NEAR(d.UnitaPerPixel(), unita * 0.8, unita * 1e-9) << "the wheel left a flat window";
}

TEST_F(VistaProva, OttimizzaMostraTutto) {
    Apri(Telaio());
    MostraFinestra({190, 150, 190, 150});
    Angolo(Asse::Y, "90"); // the frame from its edge: one line at 0
    EXPECT_FALSE(TuttoInVista());
    Menu("Ottimizza");
    EXPECT_TRUE(TuttoInVista());

    const double unita = d.UnitaPerPixel();
    Menu("Ottimizza"); // it lies in the window: the scale stays
    EXPECT_EQ(d.UnitaPerPixel(), unita);
}

TEST_F(VistaProva, SenzaAreaLaMisuraResta) {
    Apri(Colonna());
    const double unita = d.UnitaPerPixel();
    const double cx = d.ScaleLeft + d.ScaleWidth / 2, cy = d.ScaleTop + d.ScaleHeight / 2;
    Ridimensiona(9000, 8000);
    EXPECT_NEAR(d.UnitaPerPixel(), unita, unita * 1e-9);
    EXPECT_NEAR(d.ScaleLeft + d.ScaleWidth / 2, cx, 1e-9);
    EXPECT_NEAR(d.ScaleTop + d.ScaleHeight / 2, cy, 1e-9);
    EXPECT_NEAR(std::abs(d.ScalaX() / d.ScalaY()), 1, 1e-9);
    Rotella(-1);
    EXPECT_NEAR(d.UnitaPerPixel(), unita * 1.2, unita * 1e-9) << "it starts from what is shown";
}

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

TEST_F(VistaProva, DopoUnPassoDiRotellaRifiutato) {
    Apri(Telaio());
    MostraFinestra({0.11, 0, 0.11, 0});
    const FinestraDisegno mostrata = FinestraVista;
    Rotella(1);
    EXPECT_EQ(FinestraVista, mostrata) << "too small to be shown";
    const Pixel prima = Visto(0);
    PremiCentrale(X(200), Y(200));
    MuoviPremuto(X(201), Y(200));
    MuoviPremuto(X(205), Y(210));
    EXPECT_EQ(Visto(0), prima + Pixel(5, 10));
}

// --- far from the origin

struct Lontano {
    double distanza, finestra;
};
void PrintTo(const Lontano &l, std::ostream *os) {
    *os << "at " << l.distanza << ", a window of " << l.finestra << " units";
}

struct LontanoProva : VistaProva, ::testing::WithParamInterface<Lontano> {
    static constexpr int kLato = 9; // nodes 1..81 in rows upwards, a quarter of the window apart
    double passo = GetParam().finestra / 4;
    double x0 = GetParam().distanza, z0 = GetParam().distanza + 1000;

    LontanoProva() {
        LavoroProva l;
        for (int i = 0; i < kLato * kLato; ++i) {
            l.punti.push_back({0, 0, 0});
            l.nodi.push_back({.punto = i, .nome = i + 1});
        }
        Apri(l);
        for (int i = 0; i < kLato * kLato; ++i) {
            PuntoX[i] = x0 + i % kLato * passo;
            PuntoZ[i] = z0 + i / kLato * passo;
        }
        for (const Asse asse : {Asse::X, Asse::Z}) Tutto(asse);
        const double centroX = x0 + 4 * passo, centroZ = z0 + 4 * passo;
        const double mezza = GetParam().finestra / 2;
        MostraFinestra({centroX + mezza, centroX - mezza, centroZ + mezza, centroZ - mezza});
        Menu("Aggiungi");
    }
    // The nodes between the corners' pixels, one drawing unit around them counted in, as a list.
    std::string Attesi(Pixel a, Pixel b) const {
        std::vector<int> nomi;
        const auto fra = [](double v, double da, double fino) {
            return v >= std::min(da, fino) - 1 && v <= std::max(da, fino) + 1;
        };
        for (int i = 0; i < NumNodi; ++i)
            if (fra(XNodo(i), d.XDaPixel(a.x), d.XDaPixel(b.x)) &&
                fra(YNodo(i), d.YDaPixel(a.y), d.YDaPixel(b.y)))
                nomi.push_back(NomeNodo[i]);
        std::string testo;
        for (const int nome : nomi) testo += std::to_string(nome) + " ";
        return testo;
    }
    static std::string Selezionati() {
        std::string testo;
        for (int i = 0; i < NumNodi; ++i)
            if (SelNodo[i] == 1) testo += std::to_string(NomeNodo[i]) + " ";
        return testo;
    }
};

TEST_P(LontanoProva, Clic) {
    const int centro = kLato * kLato / 2; // place in the table
    const Pixel p = Visto(centro);
    ClicPixel(p.x + 3, p.y - 2);
    EXPECT_EQ(Selezionati(), std::to_string(centro + 1) + " ");
    EXPECT_TRUE(Coordinate().ends_with("[N" + std::to_string(centro + 1) + "]")) << Coordinate();
}

TEST_P(LontanoProva, Rettangoli) {
    Menu("Finestra");
    const int l = d.LarghezzaPixel(), a = d.AltezzaPixel();
    for (const auto &[da, fino] : {std::pair<Pixel, Pixel>{{l / 9, a / 9}, {l / 2 + 9, a / 2 + 9}},
                                   {{l - 9, a / 7}, {l / 3, a - 5}},
                                   {{l / 2 - 8, a / 2 - 8}, {l / 2 + 8, a / 2 + 8}}}) {
        ClicPixel(da.x, da.y);
        ClicPixel(fino.x, fino.y);
        EXPECT_EQ(Selezionati(), Attesi(da, fino)) << da.x << "," << da.y;
        Menu("RimTutto");
    }
}

TEST_P(LontanoProva, ZoomETrascinamento) {
    const double sinistra = d.XDaPixel(150), destra = d.XDaPixel(400), alto = d.YDaPixel(120);
    Menu("ZoomIn");
    ClicPixel(150, 120);
    ClicPixel(400, 300);
    const double pixel = d.UnitaPerPixel();
    EXPECT_NEAR(FinestraZoom.secondaX, sinistra, pixel / 8);
    EXPECT_NEAR(FinestraZoom.primaX, destra, pixel / 8);
    EXPECT_NEAR(FinestraZoom.primaY, alto, pixel / 8);

    const Pixel prima = Visto(40);
    Trascina({{100, 100}, {131, 90}, {157, 88}});
    EXPECT_EQ(Visto(40), prima + Pixel(57, -12));
}

INSTANTIATE_TEST_SUITE_P(Mappa, LontanoProva,
                         ::testing::Values(Lontano{4e6, 2}, Lontano{4e6, 2000}, Lontano{4e7, 2},
                                           Lontano{4e7, 200}, Lontano{5e8, 2}, Lontano{5e8, 20},
                                           Lontano{5e8, 200}, Lontano{5e8, 2000}));

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

// --- typed numbers

TEST_F(VistaProva, LaVirgolaEUnPunto) {
    Apri(Telaio());
    Angolo(Asse::X, "22.5");
    const double atteso = YDis[8];
    Angolo(Asse::X, "22,5");
    EXPECT_EQ(Detto(), "");
    EXPECT_EQ(YDis[8], atteso);
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

TEST_F(VistaProva, AngoliRifiutati) {
    Apri(Telaio());
    Angolo(Asse::Z, "12");
    for (const std::string testo : {"6e307", "-6e307", "abc", "1,2,3"}) {
        Angolo(Asse::Z, testo);
        EXPECT_EQ(Detto(), "ERRORE: Angolo di vista non valido: " + testo +
                               " (usare cifre, ad esempio 22.5)");
        EXPECT_EQ(FormTelva.Angolo[2].Text(), "12");
        EXPECT_EQ(FormTelva.fuoco, &FormTelva.Angolo[2]) << "ready to be corrected";
    }
}

TEST_F(VistaProva, AngoliRifiutatiSenzaStruttura) {
    Installa();
    ScriviLavoro(Telaio());
    Cancella("lavori/prova1/STRUTTUR.STR");
    Avvia();
    EXPECT_EQ(Detto(), "Problema: Errore nella lettura della struttura");
    Angolo(Asse::X, "abc");
    EXPECT_EQ(Detto(), "ERRORE: Angolo di vista non valido: abc (usare cifre, ad esempio 22.5)");
    EXPECT_EQ(FormTelva.Angolo[0].Text(), "30");
    Intervallo(Estremo::MinX, "abc");
    EXPECT_EQ(Detto(), "ERRORE: Intervallo di coordinate non valido: abc");
    EXPECT_EQ(FormTelva.IntX[0].Text(), "");
    EXPECT_EQ(FormTelva.fuoco, &FormTelva.IntX[0]);
}

// --- a selection that is being asked for

TEST_F(VistaProva, RimuoviTuttoNonInterrompeLaDomanda) {
    Apri(Telaio());
    Tipo(1);
    Menu("Aggiungi");
    Menu("Nome");
    Elenco("1-2");
    FormTelva.Risposta.Text = "3-5";
    const std::string domanda = FormTelva.Domanda.Caption;
    Menu("RimTutto");
    EXPECT_EQ(Lista(), "");
    EXPECT_EQ(SottoFunzione(), "Selezione diretta");
    EXPECT_EQ(FormTelva.Domanda.Caption(), domanda);
    EXPECT_EQ(FormTelva.Risposta.Text(), "3-5");
    EXPECT_TRUE(FormTelva.Risposta.Enabled);
    Invio();
    EXPECT_EQ(Lista(), "3-5");
}

} // namespace telva::prove
