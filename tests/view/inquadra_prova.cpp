#include "model/struttura.h"
#include "sostegno/Banco.h"
#include "ui/controlli/FormTelva.h"
#include "view/inquadra.h"
#include "view/visibile.h"
#include <numeric>
#include <ostream>

namespace telva {
void PrintTo(const FinestraDisegno &f, std::ostream *os) {
    *os << "x " << f.secondaX << ".." << f.primaX << ", y " << f.secondaY << ".." << f.primaY;
}
} // namespace telva

namespace telva::prove {

constexpr double kAlto = 6000; // twips: 400 pixels

// The frame from the front: 200 x 200 units.
struct Inquadra : Banco {
    RiquadroDisegno &d = FormTelva.Disegno;

    Inquadra() {
        Apri(Telaio());
        d.Width = kAlto;
        d.Height = kAlto;
    }
    struct Scala {
        double sinistra, alto, larga, alta;
    };
    void ScalaE(const Scala &s, const std::string &che) {
        EXPECT_NEAR(d.ScaleLeft, s.sinistra, 1e-9) << che;
        EXPECT_NEAR(d.ScaleTop, s.alto, 1e-9) << che;
        EXPECT_NEAR(d.ScaleWidth, s.larga, 1e-9) << che;
        EXPECT_NEAR(d.ScaleHeight, s.alta, 1e-9) << che;
    }
    template <class Flag>
    static int Quanti(const Flag &flag, int numero) {
        return std::accumulate(flag.Dati(), flag.Dati() + numero, 0);
    }
    void Attivi(int nodi, int aste, int gusci, const std::string &che) {
        EXPECT_EQ(Quanti(AttNodo, NumNodi), nodi) << "active nodes: " << che;
        EXPECT_EQ(Quanti(AttAsta, NumAste), aste) << "active bars: " << che;
        EXPECT_EQ(Quanti(AttGuscio, NumGusci), gusci) << "active shells: " << che;
    }
};

// A tenth at the upper end, then a tenth of the widened window at the lower one.
TEST_F(Inquadra, LaFinestraSiAllargaSiCentraENonSiDeforma) {
    struct Caso {
        const char *che;
        FinestraDisegno zoom;
        double larghezza;
        Scala attesa;
    };
    for (const Caso &c :
         {Caso{.che = "wider than the box",
         .zoom = {100, 0, 10, 0},
         .larghezza = kAlto,
         .attesa = {.sinistra = -11, .alto = 65.45, .larga = 121, .alta = -121}},
          {.che = "taller than the box",
          .zoom = {10, 0, 100, 0},
          .larghezza = 1.5 * kAlto,
          .attesa = {.sinistra = 4.95 - 90.75, .alto = 110, .larga = 181.5, .alta = -121}},
          {.che = "no zoom: the structure",
          .zoom = {},
          .larghezza = kAlto,
          .attesa = {.sinistra = -22, .alto = 220, .larga = 242, .alta = -242}}}) {
        d.Width = c.larghezza;
        FinestraZoom = c.zoom;
        Adatta();
        ScalaE(c.attesa, c.che);
    }
}

TEST_F(Inquadra, LaVistaPresaComeZoomMostraLoStesso) {
    Adatta();
    FinestraZoom = FinestraVista;
    Adatta();
    ScalaE({.sinistra = -22, .alto = 220, .larga = 242, .alta = -242}, "taken over");
}

TEST_F(Inquadra, SenzaAreaLaScalaResta) {
    Adatta();
    FormTelva.IntZ[1].Text = "0"; // one row of the frame is left
    struct Caso {
        const char *che;
        FinestraDisegno zoom;
    };
    for (const Caso &c : {Caso{.che = "one row of nodes", .zoom = {}},
                          {.che = "a flat window", .zoom = {100, 0, 5, 5}},
                          {.che = "a tiny window", .zoom = {0.001, 0, 0.01, 0}}}) {
        FinestraZoom = c.zoom;
        Adatta();
        ScalaE({.sinistra = -22, .alto = 220, .larga = 242, .alta = -242}, c.che);
    }
}

TEST_F(Inquadra, OgniScattoDellaRotellaTogliUnDecimoPerParte) {
    struct Caso {
        const char *che;
        FinestraDisegno zoom;
        int scatti;
        FinestraDisegno attesa;
        bool ridisegna = true;
    };
    for (const Caso &c :
         {Caso{.che = "in, from the whole", .zoom = {}, .scatti = 1, .attesa = {180, 20, 180, 20}},
          {.che = "out", .zoom = {100, 0, 50, 0}, .scatti = -1, .attesa = {110, -10, 55, -5}},
          {.che = "from a window too small",
          .zoom = {100, 0, 0.09, 0},
          .scatti = 2,
          .attesa = {160, 40, 160, 40}},
          {.che = "to a window too small",
          .zoom = {0.1, 0, 50, 0},
          .scatti = 1,
          .attesa = {0.1 - 0.1 * 0.1, 0.1 * 0.1, 45, 5},
          .ridisegna = false}}) {
        FormTelva.Ottimizza.Click();
        FinestraZoom = c.zoom;
        FormTelva.Rotella(c.scatti);
        EXPECT_EQ(FinestraZoom, c.attesa) << c.che;
        EXPECT_EQ(FinestraVista == c.attesa, c.ridisegna) << "redrawn: " << c.che;
    }
}

TEST_F(Inquadra, LaRotellaSiFermaSottoUnDecimoDiUnita) {
    struct Caso {
        double lato; // after one step
        bool ridisegna;
    };
    for (const Caso &c :
         {Caso{.lato = 0.1001, .ridisegna = true}, {.lato = 0.0999, .ridisegna = false}}) {
        FinestraZoom = {c.lato / 0.8, 0, 50, 0};
        EXPECT_EQ(ApplicaRotella(1), c.ridisegna) << "width " << c.lato;
        FinestraZoom = {50, 0, c.lato / 0.8, 0};
        EXPECT_EQ(ApplicaRotella(1), c.ridisegna) << "height " << c.lato;
    }
}

TEST_F(Inquadra, UnIntervalloComprendeMezzaUnitaInPiu) {
    struct Caso {
        const char *min, *max;
        int nodi, aste, gusci;
    };
    for (const Caso &c : {Caso{.min = "0", .max = "200", .nodi = 9, .aste = 12, .gusci = 4},
                          {.min = "0", .max = "99.5", .nodi = 6, .aste = 7, .gusci = 2},
                          {.min = "0", .max = "99.4", .nodi = 3, .aste = 2, .gusci = 0},
                          {.min = "100.5", .max = "199", .nodi = 3, .aste = 2, .gusci = 0},
                          {.min = "100.6", .max = "300", .nodi = 3, .aste = 2, .gusci = 0},
                          {.min = "200.6", .max = "300", .nodi = 0, .aste = 0, .gusci = 0}}) {
        FormTelva.IntX[0].Text = c.min;
        FormTelva.IntX[1].Text = c.max;
        CalcolaAttivi();
        Attivi(c.nodi, c.aste, c.gusci, std::string("x from ") + c.min + " to " + c.max);
    }
}

TEST_F(Inquadra, OgniCasellaTagliaLungoIlSuoAsse) {
    for (int p = 0; p < NumPunti; ++p) PuntoY[p] = PuntoX[p] + PuntoZ[p] - 50;
    struct Caso {
        int asse; // 0 = the boxes beside X
        const char *lettera;
        decltype(FormTelva.IntX) &caselle;
        const Tabella<double, kPunti> &coordinata;
    };
    for (const Caso &c :
         {Caso{.asse = 0, .lettera = "X", .caselle = FormTelva.IntX, .coordinata = PuntoX},
          {.asse = 1, .lettera = "Y", .caselle = FormTelva.IntY, .coordinata = PuntoY},
          {.asse = 2, .lettera = "Z", .caselle = FormTelva.IntZ, .coordinata = PuntoZ}}) {
        for (auto *caselle : {&FormTelva.IntX, &FormTelva.IntY, &FormTelva.IntZ}) {
            (*caselle)[0].Text = "-1000";
            (*caselle)[1].Text = "1000";
        }
        c.caselle[1].Text = "60";
        CalcolaAttivi();
        for (int i = 0; i < NumNodi; ++i)
            EXPECT_EQ(AttNodo[i] == 1, c.coordinata[i] <= 60) << c.lettera << ", node " << i;
        const Etichetta &lettera = FormTelva.LabelAsse[c.asse];
        EXPECT_EQ(lettera.Caption(), c.lettera);
        EXPECT_NEAR(lettera.Top, c.caselle[0].Top, 60) << "the letter stands beside its boxes";
    }
}

TEST_F(Inquadra, UnTriangoloHaTreVerticiChePossonoStareFuori) {
    NodiGuscio[0][3] = -1; // its fourth corner was node 3 at (0, 100)
    FormTelva.IntZ[0].Text = "0";
    FormTelva.IntZ[1].Text = "99";
    PuntoZ[4] = 0; // the third corner
    CalcolaAttivi();
    EXPECT_EQ(AttGuscio[0], 1);
    NodiGuscio[0][3] = 3;
    CalcolaAttivi();
    EXPECT_EQ(AttGuscio[0], 0);
}

TEST_F(Inquadra, LeSpunteAttivanoPerGenereEPerSelezione) {
    SelNodo[1] = SelAsta[2] = SelGuscio[3] = 1;
    struct Caso {
        const char *che;
        bool selezionati, altri, nodi = true, aste = true, gusci = true;
        int nodiAttivi, asteAttive, gusciAttivi;
    };
    for (const Caso &c : {
             Caso{.che = "all",
            .selezionati = true,
            .altri = true,
            .nodiAttivi = 9,
            .asteAttive = 12,
            .gusciAttivi = 4},
             {.che = "not the selected",
             .selezionati = false,
             .altri = true,
             .nodiAttivi = 8,
             .asteAttive = 11,
             .gusciAttivi = 3},
             {.che = "only the selected",
             .selezionati = true,
             .altri = false,
             .nodiAttivi = 1,
             .asteAttive = 1,
             .gusciAttivi = 1},
             {.che = "no nodes",
             .selezionati = true,
             .altri = true,
             .nodi = false,
             .nodiAttivi = 0,
             .asteAttive = 12,
             .gusciAttivi = 4},
             {.che = "no bars",
             .selezionati = true,
             .altri = true,
             .aste = false,
             .nodiAttivi = 9,
             .asteAttive = 0,
             .gusciAttivi = 4},
             {.che = "no shells",
             .selezionati = true,
             .altri = true,
             .gusci = false,
             .nodiAttivi = 9,
             .asteAttive = 12,
             .gusciAttivi = 0},
         }) {
        FormTelva.ElSelez.Value = c.selezionati;
        FormTelva.ElNonSelez.Value = c.altri;
        FormTelva.NodiAtt.Value = c.nodi;
        FormTelva.AsteAtt.Value = c.aste;
        FormTelva.GusciAtt.Value = c.gusci;
        CalcolaAttivi();
        Attivi(c.nodiAttivi, c.asteAttive, c.gusciAttivi, c.che);
    }
}

// The window begins at node 0, or at the first point that counts when node 0 is hidden.
TEST_F(Inquadra, LaVistaComprendeIlSemeECioCheSiMostra) {
    FormTelva.ElNonSelez.Value = FormTelva.NodiAtt.Value = false;
    SelAsta[2] = SelGuscio[3] = 1; // bar 3 from (0,100) to (100,100); shell 4 is thin
    ColNodo[0] = 10;
    PrimoPuntoContato = 5; // (200, 100)
    d.Scale(0, 0, 1, 1);
    Adatta(); // no area: as a first view it shows a line from (0, 100) to (200, 100)
    ScalaE({.sinistra = -50, .alto = 250, .larga = 300, .alta = -300}, "node 0 is hidden");
    ColNodo[0] = 9;
    Adatta();
    EXPECT_EQ(FinestraVista, (FinestraDisegno{100, 0, 100, 0})) << "node 0 is not";
    SpessoreGuscio[3] = 3; // no such card: not thin
    Adatta();
    EXPECT_EQ(FinestraVista, (FinestraDisegno{200, 0, 200, 0})) << "with the shell";
}

TEST_F(Inquadra, UnIntervalloCheNonEUnNumeroSiRifiutaConInvio) {
    FormTelva.IntX[0].Text = "50";
    FormTelva.IntX[0].KeyDown(13);
    for (const std::string testo : {"", "-", "abc", "1O"}) {
        messaggi.clear();
        FormTelva.IntX[0].Text = testo;
        FormTelva.IntX[0].KeyDown(13);
        EXPECT_EQ(FormTelva.IntX[0].Text(), "50") << '"' << testo << '"';
        const Messaggio atteso{"Intervallo di coordinate non valido: " + testo, Icona::Critica,
                               "ERRORE"};
        EXPECT_EQ(messaggi, std::vector{atteso});
        Attivi(6, 7, 2, "x from 50");
    }
}

TEST_F(Inquadra, RidimensionareNonInterrompeChiScrive) {
    FormTelva.IntX[0].Text = "abc";
    FormTelva.Resize();
    EXPECT_TRUE(messaggi.empty());
    EXPECT_EQ(FormTelva.IntX[0].Text(), "abc");
    Attivi(9, 12, 4, "the last good interval");
}

TEST_F(Inquadra, IVerticiDelloZoomSiOrdinanoESiSposta) {
    ImpostaZoom(5, 40, 30, 10);
    EXPECT_EQ(FinestraZoom, (FinestraDisegno{30, 5, 40, 10}));
    EXPECT_TRUE(ZoomImpostato());
    SpostaVista(FinestraZoom, 4, -1);
    EXPECT_EQ(FinestraZoom, (FinestraDisegno{26, 1, 41, 11}));
    AzzeraVista();
    EXPECT_FALSE(ZoomImpostato());
}

} // namespace telva::prove
