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

// The second margin is a tenth of the width already widened by the first: the pictures of a job
// have always stood a little to one side, and zoom windows are compared with them.
void Allarga(double &prima, double &seconda) {
    prima += kMargine * std::abs(prima - seconda);
    seconda -= kMargine * std::abs(prima - seconda);
}

// The other way round: what Allarga makes as wide as this.
void Restringi(double &prima, double &seconda) {
    const double larghezza = (prima - seconda) / ((1 + kMargine) * (1 + kMargine));
    prima -= kMargine * larghezza;
    seconda = prima - larghezza;
}

bool HaArea(const FinestraDisegno &f) {
    return std::abs((f.primaY - f.secondaY) * (f.primaX - f.secondaX)) >= kAreaNulla;
}

bool TroppoSottile(const FinestraDisegno &f) {
    return std::abs(f.primaX - f.secondaX) < kFinestraMinimaRotella ||
           std::abs(f.primaY - f.secondaY) < kFinestraMinimaRotella;
}

// The one place where the user scale is set: FinestraVista is always what is shown. A side too thin
// for the wheel, as of a wall seen from its edge, is told as wide as it stands in the box.
void Mostra(FinestraDisegno f) {
    FinestraVista = f;
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
    if (TroppoSottile(FinestraVista)) {
        FinestraVista = {cx + wU / 2, cx - wU / 2, cy + hU / 2, cy - hU / 2};
        Restringi(FinestraVista.primaX, FinestraVista.secondaX);
        Restringi(FinestraVista.primaY, FinestraVista.secondaY);
    }
}

// Shows the box's pixels with so many units each around a centre.
void MostraAttorno(double cx, double cy, double unita) {
    const double mezzaX = unita * FormTelva.Disegno.LarghezzaPixel() / 2;
    const double mezzaY = unita * FormTelva.Disegno.AltezzaPixel() / 2;
    FinestraDisegno f{cx + mezzaX, cx - mezzaX, cy + mezzaY, cy - mezzaY};
    Restringi(f.primaX, f.secondaX);
    Restringi(f.primaY, f.secondaY);
    Mostra(f);
}

// What has no area (a single column seen from the front) is shown by its length.
void MostraSenzaArea(const FinestraDisegno &f) {
    const RiquadroDisegno &d = FormTelva.Disegno;
    const double lunghezza = std::max({f.primaX - f.secondaX, f.primaY - f.secondaY, 1.0});
    MostraAttorno((f.primaX + f.secondaX) / 2, (f.primaY + f.secondaY) / 2,
                  1.5 * lunghezza / std::min(d.LarghezzaPixel(), d.AltezzaPixel()));
}

// The old scale stays; a box of another size shows more or less of it around the same centre.
void TieniScala() {
    const RiquadroDisegno &d = FormTelva.Disegno;
    if (d.LarghezzaPixel() / d.ScaleWidth == d.ScalaX() &&
        d.AltezzaPixel() / d.ScaleHeight == d.ScalaY())
        return;
    MostraAttorno(d.ScaleLeft + d.ScaleWidth / 2, d.ScaleTop + d.ScaleHeight / 2,
                  d.UnitaPerPixel());
}

bool InVista(const FinestraDisegno &f) {
    const RiquadroDisegno &d = FormTelva.Disegno;
    return f.secondaX >= d.ScaleLeft && f.primaX <= d.ScaleLeft + d.ScaleWidth &&
           f.primaY <= d.ScaleTop && f.secondaY >= d.ScaleTop + d.ScaleHeight;
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

FinestraDisegno FinestraDaSpostare() {
    return ZoomImpostato() && HaArea(FinestraZoom) ? FinestraZoom : FinestraVista;
}

bool ApplicaRotella(double d) {
    FinestraDisegno &f = FinestraZoom;
    if (TroppoSottile(f)) f = FinestraVista;
    const double passoX = d * (f.primaX - f.secondaX) * kPassoRotella;
    const double passoY = d * (f.primaY - f.secondaY) * kPassoRotella;
    f.primaX -= passoX;
    f.secondaX += passoX;
    f.primaY -= passoY;
    f.secondaY += passoY;
    return !TroppoSottile(f);
}

void Adatta() {
    CalcolaAttivi();
    const FinestraDisegno f = ZoomImpostato() ? FinestraZoom : EstensioneMostrata();
    if (HaArea(f)) {
        Mostra(f);
        return;
    }
    FormTelva.MousePointer = Puntatore::Predefinito;
    if (FormTelva.Disegno.ScalaImpostata())
        TieniScala();
    else
        MostraSenzaArea(f);
}

void AdattaTutto() {
    FinestraZoom = {};
    Adatta();
    const FinestraDisegno f = EstensioneMostrata();
    if (!HaArea(f) && !InVista(f)) MostraSenzaArea(f);
}

void AzzeraVista() {
    FinestraZoom = {};
    FinestraVista = {};
}

} // namespace telva
