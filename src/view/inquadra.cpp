#include "view/inquadra.h"

#include "model/struttura.h"
#include "ui/controlli/FormTelva.h"
#include "view/colori.h"
#include "view/proiezione.h"
#include "view/visibile.h"

#include <algorithm>
#include <cmath>

namespace telva {

FinestraDisegno FinestraZoom;
FinestraDisegno FinestraVista;

namespace {

constexpr double kZoomAssente = 0.0001;
constexpr double kAreaNulla = 0.0001;
constexpr double kFinestraMinimaRotella = 0.1; // drawing units
constexpr double kPassoRotella = 0.1;
constexpr double kMargine = 0.1;

class Estensione {
  public:
    explicit Estensione(int punto) : f_{XDis[punto], XDis[punto], YDis[punto], YDis[punto]} {}
    void Comprendi(int nodo) {
        const double x = XNodo(nodo), y = YNodo(nodo);
        f_.primaX = std::max(f_.primaX, x);
        f_.secondaX = std::min(f_.secondaX, x);
        f_.primaY = std::max(f_.primaY, y);
        f_.secondaY = std::min(f_.secondaY, y);
    }
    const FinestraDisegno &Finestra() const { return f_; }

  private:
    FinestraDisegno f_;
};

FinestraDisegno EstensioneMostrata() {
    Estensione e(ColNodo[0] < kColoreNascosto ? 0 : std::max(PrimoPuntoContato, 0));
    for (int i = 0; i < NumNodi; ++i)
        if (NodoDisegnato(i)) e.Comprendi(i);
    for (int b = 0; b < NumAste; ++b) {
        if (!AstaDisegnata(b)) continue;
        e.Comprendi(NodoIAsta[b]);
        e.Comprendi(NodoJAsta[b]);
    }
    for (int s = 0; s < NumGusci; ++s)
        if (GuscioDisegnato(s))
            for (int c = 0; c < NumeroAngoli(s); ++c)
                e.Comprendi(NodiGuscio[s][static_cast<std::size_t>(c)]);
    return e.Finestra();
}

// What is shown first has no area (a single column seen from the front): there is no old scale to
// keep, so its length has to do.
void PrimaScala(const FinestraDisegno &f) {
    RiquadroDisegno &d = FormTelva.Disegno;
    const double l = d.LarghezzaPixel(), a = d.AltezzaPixel();
    const double lunghezza = std::max({f.primaX - f.secondaX, f.primaY - f.secondaY, 1.0});
    const double unita = 1.5 * lunghezza / std::min(l, a);
    const double cx = (f.primaX + f.secondaX) / 2, cy = (f.primaY + f.secondaY) / 2;
    d.Scale(cx - unita * l / 2, cy + unita * a / 2, cx + unita * l / 2, cy - unita * a / 2);
}

// The second margin is a tenth of the width already widened by the first: the pictures of a job
// have always stood a little to one side, and zoom windows are compared with them.
void Allarga(double &prima, double &seconda) {
    prima += kMargine * std::abs(prima - seconda);
    seconda -= kMargine * std::abs(prima - seconda);
}

} // namespace

bool ZoomImpostato() {
    return std::abs(FinestraZoom.primaX - FinestraZoom.secondaX) >= kZoomAssente;
}

void ImpostaZoom(double xa, double ya, double xb, double yb) {
    FinestraZoom = {std::max(xa, xb), std::min(xa, xb), std::max(ya, yb), std::min(ya, yb)};
}

void SpostaVista(const FinestraDisegno &p, double dx, double dy) {
    FinestraZoom = {p.primaX - dx, p.secondaX - dx, p.primaY - dy, p.secondaY - dy};
}

void AggiornaFinestraVista() {
    FinestraVista = ZoomImpostato() ? FinestraZoom : EstensioneMostrata();
}

bool ApplicaRotella(double d) {
    FinestraDisegno &f = FinestraZoom;
    if (std::abs(f.primaX - f.secondaX) < kFinestraMinimaRotella ||
        std::abs(f.primaY - f.secondaY) < kFinestraMinimaRotella)
        f = FinestraVista;
    const double passoX = d * (f.primaX - f.secondaX) * kPassoRotella;
    const double passoY = d * (f.primaY - f.secondaY) * kPassoRotella;
    f.primaX -= passoX;
    f.secondaX += passoX;
    f.primaY -= passoY;
    f.secondaY += passoY;
    return std::abs(f.primaX - f.secondaX) >= kFinestraMinimaRotella &&
           std::abs(f.primaY - f.secondaY) >= kFinestraMinimaRotella;
}

void Adatta() {
    CalcolaAttivi();
    AggiornaFinestraVista();
    FinestraDisegno f = FinestraVista;
    if (std::abs((f.primaY - f.secondaY) * (f.primaX - f.secondaX)) < kAreaNulla) {
        FormTelva.MousePointer = Puntatore::Predefinito;
        if (!FormTelva.Disegno.ScalaImpostata()) PrimaScala(f);
        return;
    }
    Allarga(f.primaX, f.secondaX);
    Allarga(f.primaY, f.secondaY);
    // The box is measured in its own pixels, so that one unit is the same both ways to the pixel.
    const double larghezza = FormTelva.Disegno.LarghezzaPixel();
    const double altezza = FormTelva.Disegno.AltezzaPixel();
    const double r = std::min(larghezza / std::abs(f.primaX - f.secondaX),
                              altezza / std::abs(f.primaY - f.secondaY));
    const double wU = larghezza / r, hU = altezza / r;
    const double cx = (f.primaX + f.secondaX) / 2, cy = (f.primaY + f.secondaY) / 2;
    FormTelva.Disegno.Scale(cx - wU / 2, cy + hU / 2, cx + wU / 2, cy - hU / 2);
}

void AzzeraVista() {
    FinestraZoom = {};
    FinestraVista = {};
}

} // namespace telva
