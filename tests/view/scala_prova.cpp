// What the options say in pixels is meant at 100 %, and grows with the window.
#include "model/opzioni_cond.h"
#include "model/struttura.h"
#include "selection/selezione.h"
#include "selection/trappola.h"
#include "sostegno/Banco.h"
#include "ui/controlli/FormTelva.h"
#include "view/FunzDisegno.h"
#include "view/inquadra.h"
#include "view/proiezione.h"

namespace telva::prove {
namespace {

// The frame seen from the front, on a window of any scale.
struct Scala : Banco {
    RiquadroDisegno &d = FormTelva.Disegno;

    Scala() {
        Apri(Telaio());
        FormTelva.VisAssi.Checked = false;
        Opzioni[kOpzTestiElCont] = 0.0;
        SelElCont[0] = 0;
    }
    ~Scala() override { FormTelva.dpi = 96; }

    void Mostra(CasellaSpunta *genere, double dpi) {
        for (CasellaSpunta *c : {&FormTelva.NodiAtt, &FormTelva.AsteAtt, &FormTelva.GusciAtt})
            c->Value = c == genere;
        FormTelva.dpi = dpi;
        Adatta();
        DisegnaStruttura();
    }
    Pixel NodoInPixel(int i) const {
        bool fuori = false;
        return d.InPixel(XNodo(i), YNodo(i), fuori);
    }
    bool Acceso(int x, int y) const { return d.Immagine().Leggi(x, y) != 0; }
    // How many pixels are lit without a gap, upwards and downwards from one of them.
    int Spessore(int x, int y) const {
        int su = y, giu = y;
        while (Acceso(x, su - 1)) --su;
        while (Acceso(x, giu + 1)) ++giu;
        return giu - su + 1;
    }
    // Lengths of the first four dashes and gaps of bar 1, which is level.
    std::vector<int> TrattiDellAsta() const {
        const Pixel inizio = NodoInPixel(0);
        std::vector<int> lunghezze;
        for (int x = inizio.x; lunghezze.size() < 4;) {
            const int da = x;
            while (x < d.LarghezzaPixel() && Acceso(x, inizio.y) == Acceso(da, inizio.y)) ++x;
            lunghezze.push_back(x - da);
        }
        return lunghezze;
    }
};

} // namespace

TEST_F(Scala, PenneERaggiSonoPixelAl100) {
    struct Caso {
        double dpi, opzione;
        int penna, raggio;
    };
    for (const Caso &c : {Caso{.dpi = 96, .opzione = 0, .penna = 1, .raggio = 0},
                          {.dpi = 96, .opzione = 5, .penna = 5, .raggio = 5},
                          {.dpi = 120, .opzione = 1, .penna = 1, .raggio = 1},
                          {.dpi = 144, .opzione = 1, .penna = 2, .raggio = 2},
                          {.dpi = 144, .opzione = 4, .penna = 6, .raggio = 6},
                          {.dpi = 192, .opzione = 0, .penna = 2, .raggio = 0},
                          {.dpi = 192, .opzione = 4, .penna = 8, .raggio = 8}}) {
        SCOPED_TRACE(std::to_string(c.opzione) + " pixels at " + std::to_string(c.dpi) + " DPI");
        Opzioni[kOpzPennaNonSel] = c.opzione;
        Mostra(&FormTelva.AsteAtt, c.dpi);
        const Pixel a = NodoInPixel(0), b = NodoInPixel(1);
        EXPECT_EQ(Spessore((a.x + b.x) / 2, a.y), c.penna) << "pen";
        Opzioni[kOpzPennaNonSel] = 1.0;
        Opzioni[kOpzRaggioNodo] = c.opzione;
        Mostra(&FormTelva.NodiAtt, c.dpi);
        const Pixel n = NodoInPixel(0);
        int ultimo = n.x;
        for (int x = n.x; x < n.x + 20; ++x) ultimo = Acceso(x, n.y) ? x : ultimo;
        EXPECT_EQ(ultimo - n.x, c.raggio) << "radius";
    }
}

TEST_F(Scala, ITrattiDiUnAstaCresconoConLaFinestra) {
    using Lunghezze = std::vector<int>;
    struct Caso {
        double dpi;
        std::int16_t tipo;
        int penna; // as it is drawn
        Lunghezze tratti;
    };
    for (const Caso &c : {Caso{.dpi = 96, .tipo = 1, .penna = 1, .tratti = {9, 5, 9, 5}},
                          {.dpi = 96, .tipo = 3, .penna = 1, .tratti = {9, 5, 2, 4}},
                          {.dpi = 144, .tipo = 2, .penna = 2, .tratti = {3, 6, 3, 6}},
                          {.dpi = 192, .tipo = 1, .penna = 2, .tratti = {18, 10, 18, 10}},
                          {.dpi = 192, .tipo = 2, .penna = 2, .tratti = {4, 8, 4, 8}},
                          {.dpi = 192, .tipo = 4, .penna = 2, .tratti = {18, 10, 4, 8}},
                          {.dpi = 288, .tipo = 3, .penna = 3, .tratti = {27, 15, 6, 12}}}) {
        SCOPED_TRACE("line type " + std::to_string(c.tipo) + " at " + std::to_string(c.dpi));
        TipoLinAsta[0] = c.tipo;
        Mostra(&FormTelva.AsteAtt, c.dpi);
        EXPECT_EQ(TrattiDellAsta(), c.tratti);
        EXPECT_EQ(Spessore(NodoInPixel(0).x + 2, NodoInPixel(0).y), c.penna);
    }
    Opzioni[kOpzPennaNonSel] = 2.0;
    Mostra(&FormTelva.AsteAtt, 192);
    EXPECT_GT(TrattiDellAsta().front(), 100) << "an option of two pixels has no line type";
}

TEST_F(Scala, LaTrappolaCresceConLaFinestra) {
    struct Caso {
        double dpi;
        int distanza; // pixels of the screen
        int preso;    // name of the node
    };
    OpzInt[1] = 8;
    CodFunAttiva = kAggiungi;
    FormTelva.OptElem[kNodiTipo].Seleziona();
    for (const Caso &c : {Caso{.dpi = 96, .distanza = 7, .preso = 1},
                          {.dpi = 96, .distanza = 12, .preso = 0},
                          {.dpi = 144, .distanza = 11, .preso = 1},
                          {.dpi = 144, .distanza = 13, .preso = 0},
                          {.dpi = 192, .distanza = 12, .preso = 1},
                          {.dpi = 192, .distanza = 17, .preso = 0}}) {
        Mostra(&FormTelva.NodiAtt, c.dpi);
        const double x = d.XPixel(XNodo(0)) + c.distanza;
        EXPECT_EQ(SelezioneDiretta(d.XDaPixel(x), YNodo(0)), c.preso)
            << c.distanza << " pixels away at " << c.dpi << " DPI";
    }
}

} // namespace telva::prove
