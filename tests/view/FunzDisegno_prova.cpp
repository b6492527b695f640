#include "model/opzioni_cond.h"
#include "model/struttura.h"
#include "model/tabelle_cond.h"
#include "sostegno/Banco.h"
#include "ui/controlli/FormTelva.h"
#include "view/FunzDisegno.h"
#include "view/inquadra.h"
#include "view/proiezione.h"
#include "view/visibile.h"

namespace telva::prove {
namespace {

using Colori = std::vector<std::uint32_t>; // 0x00RRGGBB
constexpr std::uint32_t kPixelBianco = 0xFFFFFF, kPixelRosso = 0xFF0000, kPixelCiano = 0x00FFFF;

struct Zona { // drawing units, corners included
    double x0 = -1e6, y0 = -1e6, x1 = 1e6, y1 = 1e6;
};

// The frame seen from the front, one kind of element at a time.
struct FunzDisegno : Banco {
    RiquadroDisegno &d = FormTelva.Disegno;

    FunzDisegno() {
        Apri(Telaio());
        TrattGuscio[0] = 0;
        Opzioni[kOpzTestiElCont] = 0.0;
        Mostra(nullptr);
    }
    void Mostra(CasellaSpunta *genere, bool assi = false) {
        for (CasellaSpunta *c : {&FormTelva.NodiAtt, &FormTelva.AsteAtt, &FormTelva.GusciAtt})
            c->Value = c == genere;
        FormTelva.VisAssi.Checked = assi;
    }
    void MostraNodi() { Mostra(&FormTelva.NodiAtt); }
    void MostraAste() { Mostra(&FormTelva.AsteAtt); }
    void MostraGusci() { Mostra(&FormTelva.GusciAtt); }
    void MostraAssi() { Mostra(nullptr, true); }

    const Superficie &Dipingi() {
        CalcolaAttivi();
        DisegnaStruttura();
        return d.Immagine();
    }
    // Lit pixels of the zone, row by row.
    Colori Accesi(const Zona &z = {}) {
        const Superficie &s = Dipingi();
        bool fuori = false;
        const Pixel a = d.InPixel(z.x0, z.y1, fuori), b = d.InPixel(z.x1, z.y0, fuori);
        Colori accesi;
        for (int y = std::max(a.y, 0); y <= std::min(b.y, s.Altezza() - 1); ++y)
            for (int x = std::max(a.x, 0); x <= std::min(b.x, s.Larghezza() - 1); ++x)
                if (s.Leggi(x, y) != 0) accesi.push_back(s.Leggi(x, y));
        return accesi;
    }
    bool Visibile(const Zona &z) { return !Accesi(z).empty(); }
};

// Across bar 1, across the lower side of shell 1, through node 1.
constexpr Zona kAttraverso{.x0 = 50, .y0 = -8, .x1 = 50, .y1 = 8};
constexpr Zona kNodo1{.x0 = 0, .y0 = 0, .x1 = 8, .y1 = 0};
constexpr Zona kDentroGuscio4{.x0 = 110, .y0 = 200, .x1 = 190, .y1 = 200}; // its upper side

} // namespace

TEST_F(FunzDisegno, IlColoreDeiSelezionatiOppureDegliAltri) {
    SelElCont[0] = 0;
    struct Caso {
        bool opzione, selezionato, ciano;
        std::size_t penna; // 1 and 4 are the default pens
    };
    for (const Caso &c : {Caso{.opzione = true, .selezionato = false, .ciano = false, .penna = 1},
                          {.opzione = true, .selezionato = true, .ciano = true, .penna = 4},
                          {.opzione = false, .selezionato = false, .ciano = true, .penna = 1},
                          {.opzione = false, .selezionato = true, .ciano = false, .penna = 4}}) {
        SCOPED_TRACE(std::string(c.opzione ? "selected" : "others") + " are highlighted, this is " +
                     (c.selezionato ? "selected" : "not selected"));
        Opzioni[kOpzColoreSel] = c.opzione ? 1.0 : 0.0;
        SelNodo[0] = SelAsta[0] = SelGuscio[0] = c.selezionato ? 1 : 0;
        MostraAste();
        EXPECT_EQ(Accesi(kAttraverso), Colori(c.penna, c.ciano ? kPixelCiano : kPixelBianco))
            << "bar";
        MostraGusci();
        EXPECT_EQ(Accesi(kAttraverso), Colori(c.penna, c.ciano ? kPixelCiano : kPixelRosso))
            << "shell";
        MostraNodi();
        EXPECT_EQ(Accesi(kNodo1), Colori(c.penna, c.ciano ? kPixelCiano : kPixelBianco)) << "node";
    }
}

TEST_F(FunzDisegno, LeAsteDiUnElementoContinuoSelezionatoSonoSelezionate) {
    const Zona asta3{.x0 = 50, .y0 = 92, .x1 = 50, .y1 = 108};
    MostraAste();
    EXPECT_NE(Accesi(asta3), Colori(4, kPixelCiano));
    SelElCont[1] = 1;
    EXPECT_EQ(Accesi(asta3), Colori(4, kPixelCiano));
    EXPECT_EQ(Accesi(kAttraverso), Colori(1, kPixelBianco)) << "a bar of the other element";
}

TEST_F(FunzDisegno, NonSiDisegnaCioCheHaColoreNascostoONonHaNome) {
    const Zona asta1{.x0 = 9, .y0 = 0, .x1 = 90, .y1 = 0};
    const Zona asta2{.x0 = 110, .y0 = 0, .x1 = 190, .y1 = 0};
    const Zona nodo2{.x0 = 90, .y0 = -9, .x1 = 110, .y1 = 9};
    MostraAste();
    ColAsta[0] = 9;
    NomeAsta[1] = 1;
    EXPECT_TRUE(Visibile(asta1)) << "the last visible colour";
    EXPECT_TRUE(Visibile(asta2)) << "the smallest name";
    ColAsta[0] = 10;
    NomeAsta[1] = 0;
    EXPECT_FALSE(Visibile(asta1)) << "hidden colour";
    EXPECT_FALSE(Visibile(asta2)) << "no name";
    MostraNodi();
    EXPECT_TRUE(Visibile(nodo2));
    ColNodo[1] = 10;
    EXPECT_FALSE(Visibile(nodo2)) << "hidden colour";
    ColNodo[1] = 1, NomeNodo[1] = -1;
    EXPECT_FALSE(Visibile(nodo2)) << "no name";
    MostraGusci();
    NomeGuscio[3] = 0, SpessoreGuscio[3] = 0;
    EXPECT_FALSE(Visibile(kDentroGuscio4)) << "no name";
    NomeGuscio[3] = 4, ColGuscio[3] = 11;
    EXPECT_FALSE(Visibile(kDentroGuscio4)) << "hidden colour";
}

TEST_F(FunzDisegno, UnGuscioPiuSottileDelLimiteSiNasconde) {
    struct Caso {
        const char *che;
        bool nascondi;
        std::int16_t scheda; // of the two that there are; the second is varied
        double spessore, limite;
        bool visibile;
    };
    MostraGusci();
    for (const Caso &c : {
             Caso{.che = "thinner",
            .nascondi = true,
            .scheda = 2,
            .spessore = 9.99,
            .limite = 10,
            .visibile = false},
             {.che = "exactly as thick",
             .nascondi = true,
             .scheda = 2,
             .spessore = 10,
             .limite = 10,
             .visibile = true},
             {.che = "thicker",
             .nascondi = true,
             .scheda = 2,
             .spessore = 10.01,
             .limite = 10,
             .visibile = true},
             {.che = "thinner, but none is hidden",
             .nascondi = false,
             .scheda = 2,
             .spessore = 1,
             .limite = 10,
             .visibile = true},
             {.che = "without a card",
             .nascondi = true,
             .scheda = 0,
             .spessore = 1,
             .limite = 99,
             .visibile = true},
             {.che = "of a card that there is not",
             .nascondi = true,
             .scheda = 3,
             .spessore = 1,
             .limite = 99,
             .visibile = true},
         }) {
        Opzioni[kOpzNascondiSottili] = c.nascondi ? 1.0 : 0.0;
        Opzioni[kOpzSpessoreMinimo] = c.limite;
        SpessoreGuscio[3] = c.scheda;
        ValSpessore[1] = c.spessore;
        EXPECT_EQ(Visibile(kDentroGuscio4), c.visibile) << c.che;
    }
}

TEST_F(FunzDisegno, DiUnTriangoloSiDisegnanoTreLati) {
    const Zona quartoLato{.x0 = 0, .y0 = 20, .x1 = 9, .y1 = 80}; // from corner 4 to corner 1
    const Zona diagonale{.x0 = 40, .y0 = 40, .x1 = 60, .y1 = 60};
    NumGusci = 1;
    MostraGusci();
    EXPECT_TRUE(Visibile(quartoLato));
    EXPECT_FALSE(Visibile(diagonale));
    NodiGuscio[0][3] = -1;
    EXPECT_FALSE(Visibile(quartoLato));
    EXPECT_TRUE(Visibile(diagonale));
}

TEST_F(FunzDisegno, UnaPennaLargaNonHaTratteggio) {
    NumAste = 1;
    MostraAste();
    Opzioni[kOpzPennaNonSel] = 2.0;
    TipoLinAsta[0] = 0;
    const std::size_t continua = Accesi().size();
    for (std::int16_t tipo = 1; tipo < 5; ++tipo) {
        TipoLinAsta[0] = tipo;
        EXPECT_EQ(Accesi().size(), continua) << "line type " << tipo;
    }
    Opzioni[kOpzPennaNonSel] = 1.0;
    for (std::int16_t tipo = 1; tipo < 5; ++tipo) {
        TipoLinAsta[0] = tipo;
        EXPECT_LT(2 * Accesi().size(), continua) << "dashed, line type " << tipo;
    }
}

TEST_F(FunzDisegno, LaPennaStaFraUnoEIlMassimo) {
    struct Caso {
        double opzione;
        std::size_t larga;
    };
    MostraAste();
    for (const Caso &c : {Caso{.opzione = -3, .larga = 1},
                          {.opzione = 0, .larga = 1},
                          {.opzione = 2.5, .larga = 2}, // halves to the even one
                          {.opzione = 3.5, .larga = 4}}) {
        Opzioni[kOpzPennaNonSel] = c.opzione;
        const Zona attraverso{.x0 = 50, .y0 = -40, .x1 = 50, .y1 = 40};
        EXPECT_EQ(Accesi(attraverso).size(), c.larga) << c.opzione;
    }
}

// The lines of a hatch stand at fixed places of the picture, so that those of neighbours join up.
TEST_F(FunzDisegno, IlRetinoHaPendenzaPassoEFaseSue) {
    struct Retino {
        std::int16_t tipo;
        const char *nome;
        bool (*acceso)(int x, int y); // whether a hatch line passes there
    };
    constexpr Retino kRetini[] = {
        {0, "none", [](int, int) { return false; }},
        {1, "horizontal", [](int, int y) { return y % 16 == 0; }},
        {2, "vertical", [](int x, int) { return x % 16 == 0; }},
        {3, "rising", [](int x, int y) { return (x + y) % 24 == 0; }},
        {4, "falling", [](int x, int y) { return (x - y) % 24 == 0; }},
        {5, "upright cross", [](int x, int y) { return x % 24 == 0 || y % 24 == 0; }},
        {6, "diagonal cross", [](int x, int y) { return (x + y) % 36 == 0 || (x - y) % 36 == 0; }},
        {7, "dense", [](int, int y) { return y % 6 == 0; }},
        {8, "dots",
         [](int x, int y) { return y % 8 == 0 && (x + (y % 16 == 0 ? 0 : 6)) % 12 < 2; }},
        {9, "none", [](int, int) { return false; }},
    };
    MostraGusci();
    NumGusci = 1;
    bool fuori = false;
    const Pixel a = d.InPixel(3, 97, fuori), b = d.InPixel(97, 3, fuori); // clear of the outline
    for (const Retino &r : kRetini) {
        TrattGuscio[0] = r.tipo;
        const Superficie &s = Dipingi();
        int errati = 0;
        for (int y = a.y; y <= b.y; ++y)
            for (int x = a.x; x <= b.x; ++x)
                if ((s.Leggi(x, y) != 0) != r.acceso(x, y) && errati++ == 0)
                    ADD_FAILURE() << "hatch " << r.tipo << " (" << r.nome << "), pixel (" << x
                                  << "," << y << "): " << (r.acceso(x, y) ? "dark" : "lit");
        EXPECT_EQ(errati, 0) << "wrong pixels of hatch " << r.tipo;
    }
}

TEST_F(FunzDisegno, UnRetinoNonEsceDalGuscio) {
    NumGusci = 1;
    NodiGuscio[0][3] = -1; // the triangle (0,0) (100,0) (100,100)
    MostraGusci();
    for (std::int16_t tipo = 0; tipo < 10; ++tipo) {
        TrattGuscio[0] = tipo;
        EXPECT_FALSE(Visibile({.y1 = -1})) << "below, hatch " << tipo;
        EXPECT_FALSE(Visibile({.x0 = 101})) << "to the right, hatch " << tipo;
        EXPECT_FALSE(Visibile({.y0 = 50, .x1 = 48})) << "beyond the diagonal, hatch " << tipo;
    }
}

TEST_F(FunzDisegno, UnGuscioPiccoloNonHaRetino) {
    NumGusci = 1;
    MostraGusci();
    FinestraZoom = {.primaX = 2180, .secondaX = -2180, .primaY = 2180, .secondaY = -2180};
    Adatta();
    TrattGuscio[0] = 0;
    const Colori contorno = Accesi();
    for (std::int16_t tipo = 1; tipo < 9; ++tipo) {
        TrattGuscio[0] = tipo;
        EXPECT_EQ(Accesi(), contorno) << "eleven pixels wide, hatch " << tipo;
    }
}

TEST_F(FunzDisegno, LaTernaStaNellAngoloInBassoASinistra) {
    OpzInt[2] = 40, OpzInt[3] = 12, OpzInt[5] = 3;
    MostraAssi();
    const Zona angolo{.x1 = d.XDaPixel(80), .y1 = d.YDaPixel(d.AltezzaPixel() - 80)};
    EXPECT_GE(Accesi().size(), 80u) << "two axes of 40 pixels at least";
    EXPECT_EQ(Accesi(), Accesi(angolo)) << "nothing outside the corner";
    EXPECT_EQ(Accesi(), Colori(Accesi().size(), kPixelRosso)) << "colour 3";
    Mostra(nullptr);
    EXPECT_FALSE(Visibile({})) << "switched off";
    OpzInt[2] = 0;
    MostraAssi();
    EXPECT_FALSE(Visibile({})) << "without lengths";
}

TEST_F(FunzDisegno, LaTernaNonSiSpostaCoiTagliDellaVista) {
    OpzInt[2] = 40, OpzInt[3] = 12;
    MostraAssi();
    const Superficie prima = Dipingi();
    FinestraZoom = {.primaX = 60, .secondaX = -40, .primaY = 150, .secondaY = 20};
    Adatta();
    const Superficie &dopo = Dipingi();
    int diversi = 0;
    for (int y = 0; y < prima.Altezza(); ++y)
        for (int x = 0; x < prima.Larghezza(); ++x)
            diversi += prima.Leggi(x, y) != dopo.Leggi(x, y);
    EXPECT_EQ(diversi, 0) << "pixels";
}

TEST_F(FunzDisegno, SenzaProiezioneIlRiquadroEVuoto) {
    MostraAste();
    EXPECT_TRUE(Visibile({}));
    AzzeraProiezione();
    EXPECT_FALSE(Visibile({}));
}

} // namespace telva::prove
