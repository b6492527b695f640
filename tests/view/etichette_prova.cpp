#include "model/opzioni_cond.h"
#include "model/struttura.h"
#include "sostegno/Banco.h"
#include "ui/controlli/FormTelva.h"
#include "view/FunzDisegno.h"
#include "view/etichette.h"
#include "view/inquadra.h"
#include "view/proiezione.h"
#include "view/visibile.h"
#include <algorithm>

namespace telva::prove {
namespace {

// Which labels, and which of their parts.
constexpr int kGeneri[] = {kOpzTestiNodi, kOpzTestiAste, kOpzTestiGusci, kOpzTestiElCont};
constexpr int kPrimaParte = kOpzPartiNodi, kUltimaParte = kOpzNomeElCont;
constexpr int kNomeNodo = 14, kVincolo = 15, kNomeAsta = 16, kMaterialeAsta = 17, kSezione = 18,
              kOrientamento = 19, kSvincolo = 20, kNomeGuscio = 21, kMaterialeGuscio = 22,
              kSpessore = 23;

struct Riquadro { // drawing units
    double sinistra = 1e9, destra = -1e9, basso = 1e9, alto = -1e9;
};

// The frame from the front, with two braces that cross.
struct Etichette : Banco {
    RiquadroDisegno &d = FormTelva.Disegno;

    Etichette() {
        LavoroProva l = Telaio();
        l.aste.push_back({.i = 1, .j = 5, .nome = 13});
        l.aste.push_back({.i = 2, .j = 4, .nome = 14});
        for (auto &g : l.gusci) {
            g.tratto = 0;
            g.spessore = 1;
        }
        l.gusci[1].colore = 10; // hidden, where the braces are
        l.sezioni[1] = 9;
        Apri(l);
        Opzioni[kOpzBaseTesto] = 2.0;
        Opzioni[kOpzAltezzaTesto] = 5.0;
        Opzioni[kOpzDistanzaTesto] = 2.0;
        Generi({});
        Parti({});
    }
    static void Accendi(const std::vector<int> &voci, int voce) {
        Opzioni[voce] = std::ranges::find(voci, voce) != voci.end() ? 1.0 : 0.0;
    }
    void Generi(const std::vector<int> &accesi) {
        for (const int voce : kGeneri) Accendi(accesi, voce);
    }
    void Parti(const std::vector<int> &accese) {
        for (int voce = kPrimaParte; voce <= kUltimaParte; ++voce) Accendi(accese, voce);
    }
    void TutteLeParti() {
        for (int voce = kPrimaParte; voce <= kUltimaParte; ++voce) Opzioni[voce] = 1.0;
    }

    // What these kinds of labels add to the picture.
    struct Scritto {
        int pixel = 0, sopraElementi = 0;
        Riquadro riquadro;
    };
    Scritto Scrive(const std::vector<int> &generi) {
        Generi({});
        DisegnaStruttura();
        const Superficie nuda = d.Immagine();
        Generi(generi);
        DisegnaStruttura();
        Scritto s;
        for (int y = 0; y < nuda.Altezza(); ++y)
            for (int x = 0; x < nuda.Larghezza(); ++x) {
                if (d.Immagine().Leggi(x, y) == nuda.Leggi(x, y)) continue;
                ++s.pixel;
                s.sopraElementi += nuda.Leggi(x, y) != 0;
                s.riquadro.sinistra = std::min(s.riquadro.sinistra, d.XDaPixel(x));
                s.riquadro.destra = std::max(s.riquadro.destra, d.XDaPixel(x));
                s.riquadro.basso = std::min(s.riquadro.basso, d.YDaPixel(y));
                s.riquadro.alto = std::max(s.riquadro.alto, d.YDaPixel(y));
            }
        return s;
    }
    // Fails unless something is written, inside the box and over no element.
    void ScriveDentro(const Scritto &s, const Riquadro &atteso, const std::string &che) {
        EXPECT_GT(s.pixel, 9) << "nothing written: " << che;
        EXPECT_EQ(s.sopraElementi, 0) << "pixels of elements covered: " << che;
        EXPECT_GE(s.riquadro.sinistra, atteso.sinistra) << che;
        EXPECT_LE(s.riquadro.destra, atteso.destra) << che;
        EXPECT_GE(s.riquadro.basso, atteso.basso) << che;
        EXPECT_LE(s.riquadro.alto, atteso.alto) << che;
    }
    // Leaves node 1 at (0,0), one bar between two nodes and one shell up to (100,100).
    void UnoSolo(std::int16_t i, std::int16_t j) {
        NumNodi = NumAste = NumGusci = NumElCont = 1;
        NodoIAsta[0] = i;
        NodoJAsta[0] = j;
    }
};

} // namespace

TEST_F(Etichette, IlTestoHaLePartiAccese) {
    struct Caso {
        const char *che;
        std::vector<int> parti;
        const char *nodo, *asta, *guscio; // of node 5, bar 7, shell 3
    };
    for (const Caso &c :
         {Caso{.che = "none", .parti = {}, .nodo = "", .asta = "", .guscio = ""},
          {.che = "names",
          .parti = {kNomeNodo, kNomeAsta, kNomeGuscio},
          .nodo = "N5",
          .asta = "A7",
          .guscio = "G3"},
          {.che = "materials",
          .parti = {kMaterialeAsta, kMaterialeGuscio},
          .nodo = "",
          .asta = "M9",
          .guscio = "M3"},
          {.che = "cards",
          .parti = {kSezione, kSpessore},
          .nodo = "",
          .asta = "S2",
          .guscio = "S1"},
          {.che = "the rest",
          .parti = {kVincolo, kOrientamento, kSvincolo},
          .nodo = "V1",
          .asta = "O7 C0",
          .guscio = ""},
          {.che = "all",
          .parti = {kNomeNodo, kVincolo, kNomeAsta, kMaterialeAsta, kSezione, kOrientamento,
                    kSvincolo, kNomeGuscio, kMaterialeGuscio, kSpessore},
          .nodo = "N5 V1",
          .asta = "A7 M9 S2 O7 C0",
          .guscio = "G3 M3 S1"}}) {
        Parti(c.parti);
        EXPECT_EQ(EtichettaNodo(4), c.nodo) << c.che;
        EXPECT_EQ(EtichettaAsta(6), c.asta) << c.che;
        EXPECT_EQ(EtichettaGuscio(2), c.guscio) << c.che;
    }
    NomeElCont[1] = "  Trave media ";
    EXPECT_EQ(EtichettaElCont(1), "20 - Trave media");
}

TEST_F(Etichette, OgniGenereScriveENessunoCopreGliElementiOGliAltri) {
    TutteLeParti();
    int somma = 0;
    for (const int genere : kGeneri) {
        const Scritto s = Scrive({genere});
        ScriveDentro(s, {-99, 299, -99, 299}, "kind of option " + std::to_string(genere));
        somma += s.pixel;
    }
    const Scritto tutti = Scrive({kGeneri[0], kGeneri[1], kGeneri[2], kGeneri[3]});
    EXPECT_EQ(tutti.pixel, somma) << "pixels of all kinds together";
}

TEST_F(Etichette, LEtichettaDiUnAstaStaSopraIlSuoMezzoOSottoSeScende) {
    struct Caso {
        const char *che;
        std::int16_t i, j;
        double mezzo, basso; // middle of the bar; lower side of the text box
    };
    Parti({kNomeAsta});
    for (const Caso &c :
         {Caso{.che = "level", .i = 0, .j = 1, .mezzo = 50, .basso = 1.5},
          {.che = "level, drawn backwards", .i = 1, .j = 0, .mezzo = 50, .basso = 1.5},
          {.che = "rising", .i = 0, .j = 4, .mezzo = 50, .basso = 54},
          {.che = "falling", .i = 3, .j = 1, .mezzo = 50, .basso = 40}}) {
        UnoSolo(c.i, c.j);
        ScriveDentro(Scrive({kOpzTestiAste}), {c.mezzo - 2.5, c.mezzo + 2.5, c.basso, c.basso + 6},
                     c.che);
    }
}

TEST_F(Etichette, LEtichettaDiUnAstaRittaStaADestra) {
    Parti({kNomeAsta});
    UnoSolo(0, 3);
    ScriveDentro(Scrive({kOpzTestiAste}), {1.5, 6.5, 47, 53}, "upwards");
    UnoSolo(3, 0);
    ScriveDentro(Scrive({kOpzTestiAste}), {1.5, 6.5, 47, 53}, "downwards");
}

TEST_F(Etichette, LEtichettaDiUnAstaVistaDiPuntaStaASinistra) {
    Parti({kNomeAsta});
    UnoSolo(0, 1);
    XDis[PuntoNodo[1]] = XDis[PuntoNodo[0]];
    ScriveDentro(Scrive({kOpzTestiAste}), {-6.5, -1.5, 1.5, 7.5}, "from its end");
}

TEST_F(Etichette, LEtichettaDiUnNodoStaDoveNonPassaNulla) {
    struct Caso {
        const char *che;
        std::vector<std::int16_t> verso; // nodes to which bars go from node 5, in the middle
        double sinistra, basso;
    };
    Parti({kNomeNodo});
    const double qui = 102.5, la = 97.5 - 5; // the text box is 4 x 5
    for (const Caso &c :
         {Caso{.che = "nothing", .verso = {}, .sinistra = qui, .basso = qui},
          {.che = "bars along the axes", .verso = {1, 3, 5, 7}, .sinistra = qui, .basso = qui},
          {.che = "one to the upper right", .verso = {8}, .sinistra = qui, .basso = la},
          {.che = "the two on the right", .verso = {8, 2}, .sinistra = la, .basso = qui},
          {.che = "all but the lower left", .verso = {8, 2, 6}, .sinistra = la, .basso = la},
          {.che = "all four", .verso = {8, 2, 6, 0}, .sinistra = qui, .basso = qui}}) {
        for (int i = 0; i < NumNodi; ++i) NomeNodo[i] = i == 4 ? 5 : 0;
        NumAste = static_cast<std::int16_t>(c.verso.size());
        NumGusci = NumElCont = 0;
        for (int b = 0; b < NumAste; ++b) {
            NodoIAsta[b] = 4;
            NodoJAsta[b] = c.verso[static_cast<std::size_t>(b)];
        }
        const Scritto s = Scrive({kOpzTestiNodi});
        EXPECT_GT(s.pixel, 9) << c.che;
        EXPECT_GE(s.riquadro.sinistra, c.sinistra - 1) << c.che;
        EXPECT_LE(s.riquadro.destra, c.sinistra + 6) << c.che;
        EXPECT_GE(s.riquadro.basso, c.basso - 1) << c.che;
        EXPECT_LE(s.riquadro.alto, c.basso + 7) << c.che;
    }
}

TEST_F(Etichette, AncheILatiDeiGusciOccupanoGliAngoli) {
    Parti({kNomeNodo});
    UnoSolo(0, 1);
    NumAste = 0;
    NodiGuscio[0] = {0, 4, 3, -1, 0}; // its side from node 1 rises to the right
    ScriveDentro(Scrive({kOpzTestiNodi}), {1.5, 8.5, -9.5, -1.5}, "below the side");
}

TEST_F(Etichette, LEtichettaDiUnGuscioStaNelMezzo) {
    Parti({kNomeGuscio});
    UnoSolo(0, 1);
    ScriveDentro(Scrive({kOpzTestiGusci}), {47.5, 52.5, 47, 53}, "square");
    NodiGuscio[0] = {0, 1, 4, -1, 0};
    ScriveDentro(Scrive({kOpzTestiGusci}), {66.6 - 2.5, 66.6 + 2.5, 33.3 - 3, 33.3 + 3},
                 "triangle");
}

TEST_F(Etichette, IlNomeDiUnElementoContinuoCorreLungoLaPrimaAsta) {
    TutteLeParti();
    struct Caso {
        const char *che;
        std::int16_t i, j;
        Riquadro atteso;
    };
    for (const Caso &c :
         {Caso{.che = "level: below", .i = 0, .j = 1, .atteso = {33, 67, -8, -1.5}},
          {.che = "backwards: the same", .i = 1, .j = 0, .atteso = {33, 67, -8, -1.5}},
          {.che = "upright: to the left", .i = 0, .j = 3, .atteso = {-7.5, -1.5, 33.5, 66.5}},
          {.che = "downwards: the same", .i = 3, .j = 0, .atteso = {-7.5, -1.5, 33.5, 66.5}}}) {
        UnoSolo(c.i, c.j);
        const Scritto s = Scrive({kOpzTestiElCont});
        ScriveDentro(s, c.atteso, c.che);
        EXPECT_GT(s.pixel, 99) << "the whole name: " << c.che;
    }
}

TEST_F(Etichette, SenzaPartiOSenzaAstaNonSiScriveNulla) {
    EXPECT_EQ(Scrive({kOpzTestiNodi, kOpzTestiAste, kOpzTestiGusci}).pixel, 0) << "no part is on";
    EXPECT_EQ(Scrive({kOpzTestiElCont}).pixel, 0) << "the name is off";
    TutteLeParti();
    NumElCont = 1;
    AsteElCont(0, 0) = 30000;
    EXPECT_EQ(Scrive({kOpzTestiElCont}).pixel, 0) << "no bar has this name";
    AsteElCont(0, 0) = 0;
    NumeroElCont[0] = 0;
    EXPECT_EQ(Scrive({kOpzTestiElCont}).pixel, 0) << "an element without number";
    for (const int voce : {kOpzBaseTesto, kOpzAltezzaTesto}) {
        const telva::Valore prima = Opzioni[voce];
        Opzioni[voce] = 0.0;
        EXPECT_EQ(Scrive({kOpzTestiNodi, kOpzTestiAste}).pixel, 0) << "text without size";
        Opzioni[voce] = prima;
    }
}

TEST_F(Etichette, CioCheNonSiDisegnaNonHaEtichetta) {
    TutteLeParti();
    struct Caso {
        const char *che;
        int genere;
        CasellaSpunta &spunta;
    };
    for (const Caso &c :
         {Caso{.che = "nodes", .genere = kOpzTestiNodi, .spunta = FormTelva.NodiAtt},
          {.che = "bars", .genere = kOpzTestiAste, .spunta = FormTelva.AsteAtt},
          {.che = "shells", .genere = kOpzTestiGusci, .spunta = FormTelva.GusciAtt},
          {.che = "continuous elements", .genere = kOpzTestiElCont, .spunta = FormTelva.AsteAtt}}) {
        c.spunta.Value = false;
        CalcolaAttivi();
        EXPECT_EQ(Scrive({c.genere}).pixel, 0) << c.che;
        c.spunta.Value = true;
        CalcolaAttivi();
        EXPECT_GT(Scrive({c.genere}).pixel, 9) << c.che;
    }
}

TEST_F(Etichette, DiUnEtichettaSiVedeCioCheSporgeNelRiquadro) {
    Parti({kNomeAsta, kMaterialeAsta, kSezione, kOrientamento, kSvincolo});
    UnoSolo(0, 3); // upright at x = 0; its long label reaches to x = 30
    FinestraZoom = {.primaX = 62, .secondaX = 9, .primaY = 65, .secondaY = 35};
    Adatta();
    EXPECT_GT(d.ScaleLeft, 1) << "the bar is out of sight";
    EXPECT_GT(Scrive({kOpzTestiAste}).pixel, 499);
}

} // namespace telva::prove
