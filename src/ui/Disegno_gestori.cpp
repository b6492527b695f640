// The pointer on the drawing: direct pick, selection window, zoom window, pan by two clicks and pan
// by dragging with the middle button; and the coordinate read-out.

#include "ui/Disegno_gestori.h"

#include "model/struttura.h"
#include "platform/citazione.h"
#include "platform/numeri.h"
#include "selection/finestra_sel.h"
#include "selection/schede_sel.h"
#include "selection/selezione.h"
#include "selection/trappola.h"
#include "ui/controlli/FormTelva.h"
#include "ui/gesto.h"
#include "ui/preda.h"
#include "ui/vista_gestori.h"
#include "view/inquadra.h"

#include <algorithm>
#include <cmath>

namespace telva {

std::int16_t UltimoTasto = 0;

namespace {

constexpr int kSinistro = 1, kDestro = 2, kCentrale = 4;
constexpr double kSoglia = 0.0001; // drawing units: shorter moves are none

double primoX = 0, primoY = 0; // first corner

// What the box shows: another one means that something else than the drag has moved the view.
struct Mostrato {
    FinestraDisegno zoom;
    double sinistra = 0, alto = 0, larghezza = 0, altezza = 0; // of the scale
    double pixelX = 0, pixelY = 0; // to the unit: a box of the same aspect fits the same window
    friend bool operator==(const Mostrato &, const Mostrato &) = default;
};

// The view when the middle button went down: window and corner of the scale; and what the drag has
// shown last.
struct {
    FinestraDisegno finestra;
    double scalaSinistra = 0, scalaAlto = 0;
    Mostrato ultimo;
} trascina;

RiquadroDisegno &Disegno() { return FormTelva.Disegno; }

Mostrato Ora() {
    const RiquadroDisegno &d = Disegno();
    return {FinestraZoom,  d.ScaleLeft, d.ScaleTop, d.ScaleWidth,
            d.ScaleHeight, d.ScalaX(),  d.ScalaY()};
}

// After a zoom or a pan: the gesture of the selection goes on, and is named again.
void RipristinaSottoFun() {
    Etichetta &etichetta = FormTelva.SottoFunAttiva;
    switch (CodSottoFun) {
    case kNessuna: AzzeraInput(); break;
    case kFinestra: etichetta.Caption = "Seleziona per finestra"; break;
    case kMateriale: etichetta.Caption = "Seleziona per materiale"; break;
    case kNome: etichetta.Caption = "Seleziona per nome elemento"; break;
    case kDiretta: etichetta.Caption = "Selezione diretta"; break;
    default: break; // the other property lists keep what is shown
    }
}

void PrimoPuntoSposta(double x, double y) {
    Segmento &linea = Disegno().LineSposta;
    linea.X1 = linea.X2 = x;
    linea.Y1 = linea.Y2 = y;
    Entra(Gesto::SpostaAperto);
}

// False while the second point lies on the first.
bool SecondoPuntoSposta(double x, double y) {
    Segmento &linea = Disegno().LineSposta;
    linea.X2 = x;
    linea.Y2 = y;
    const double dx = linea.X2 - linea.X1, dy = linea.Y2 - linea.Y1;
    if (!(std::abs(dx) > kSoglia || std::abs(dy) > kSoglia)) return false;
    SpostaVista(FinestraDaSpostare(), dx, dy);
    Entra(Gesto::VistaFerma);
    Ridis_Click();
    RipristinaSottoFun();
    return true;
}

void TendiRettangolo(double x, double y) {
    // The pointer's place comes rounded: so must the edges, or half of all views would lose their
    // first column of pixels to the rounding.
    const RiquadroDisegno &d = Disegno();
    if (x < d.XEvento(d.ScaleLeft) || x > d.XEvento(d.ScaleLeft + d.ScaleWidth) ||
        y > d.YEvento(d.ScaleTop) || y < d.YEvento(d.ScaleTop + d.ScaleHeight))
        return;
    Rettangolo &shape = Disegno().Shape;
    shape.Left = std::min(primoX, x);
    shape.Width = std::abs(x - primoX);
    shape.Top = std::max(primoY, y); // upper edge as it is seen
    shape.Height = std::abs(y - primoY);
}

void PrimoAngoloRettangolo(Gesto aperto, double x, double y) {
    primoX = x;
    primoY = y;
    Rettangolo &shape = Disegno().Shape;
    shape.Left = x;
    shape.Top = y;
    shape.Width = shape.Height = 0;
    Entra(aperto);
}

bool SenzaArea(const Rettangolo &r) { return r.Width * r.Height == 0; }

void AttendiFinestra(Gesto attesa) {
    CodSottoFun = kFinestra;
    FormTelva.SottoFunAttiva.Caption = "Seleziona per finestra";
    Entra(attesa);
}

// After an automatic window direct pick goes on.
void RiprendiDiretta() {
    CodSottoFun = kDiretta;
    AbilitaComandi();
    FormTelva.SottoFunAttiva.Caption = "Selezione diretta";
    Entra(Gesto::Riposo);
}

void Scegli(double x, double y) {
    FormTelva.MousePointer = Puntatore::Clessidra;
    const std::int16_t nome = SelezioneDiretta(x, y);
    if (nome < 1) { // nothing there: the same click opens a selection window
        AttendiFinestra(Gesto::AutomaticaAttesa);
        PrimoAngoloRettangolo(Gesto::AutomaticaAperta, x, y);
    } else {
        SelezionaElementoPerNome(TestoNumero(nome), SegnoFunzione());
    }
    FormTelva.MousePointer = Puntatore::Predefinito;
}

void SecondoAngoloZoom(double x, double y) {
    TendiRettangolo(x, y);
    const Rettangolo &r = Disegno().Shape;
    if (SenzaArea(r)) return Entra(Gesto::ZoomArmato);
    Entra(Gesto::VistaFerma);
    ImpostaZoom(r.Left, r.Top, r.Left + r.Width, r.Top - r.Height);
    Ridis_Click();
    RipristinaSottoFun();
}

void SecondoAngoloFinestra(double x, double y) {
    TendiRettangolo(x, y);
    const Rettangolo &r = Disegno().Shape;
    const bool automatica = InCorso(Gesto::AutomaticaAperta);
    Entra(automatica ? Gesto::AutomaticaAttesa : Gesto::FinestraAttesa);
    if (SenzaArea(r)) return;
    FormTelva.MousePointer = Puntatore::Clessidra;
    SelezionaFinestra(r.Left, r.Top, r.Width, r.Height, SegnoFunzione());
    FormTelva.MousePointer = Puntatore::Predefinito;
    if (automatica) RiprendiDiretta();
}

// What a left click does to the gesture of the view; false when it goes on to the selection's.
bool ClickVista(double x, double y) {
    switch (GestoIn(Strato::Vista)) {
    case Gesto::SpostaArmato: PrimoPuntoSposta(x, y); return true;
    case Gesto::SpostaAperto: return SecondoPuntoSposta(x, y);
    case Gesto::ZoomArmato: PrimoAngoloRettangolo(Gesto::ZoomAperto, x, y); return true;
    case Gesto::ZoomAperto: SecondoAngoloZoom(x, y); return true;
    default: return false;
    }
}

void ClickSelezione(double x, double y) {
    switch (GestoIn(Strato::Selezione)) {
    case Gesto::FinestraAttesa: PrimoAngoloRettangolo(Gesto::FinestraAperta, x, y); break;
    case Gesto::AutomaticaAttesa: PrimoAngoloRettangolo(Gesto::AutomaticaAperta, x, y); break;
    case Gesto::FinestraAperta:
    case Gesto::AutomaticaAperta: SecondoAngoloFinestra(x, y); break;
    default:
        if (SelezioneDirettaPronta()) Scegli(x, y);
    }
}

void TastoSinistro(double x, double y) {
    if (!ClickVista(x, y)) ClickSelezione(x, y);
}

void InizioTrascina(double x, double y) {
    Segmento &linea = Disegno().LineSposta;
    linea.X1 = linea.X2 = x;
    linea.Y1 = linea.Y2 = y;
    trascina = {FinestraVista, Disegno().ScaleLeft, Disegno().ScaleTop, Ora()};
    Entra(Gesto::Trascina);
}

// The pointer's place is told in a scale that the drag itself moves: both are brought back to the
// scale of the press, in whole pixels, so that the drawing sticks to the pointer.
void Trascina(double x, double y) {
    if (!InCorso(Gesto::Trascina)) return;
    if (!(Ora() == trascina.ultimo)) { // on from what is shown now
        InizioTrascina(x, y);
        return;
    }
    const Segmento &linea = Disegno().LineSposta;
    // Whole pixels, each way by its own scale: in a far-off job they differ by a rounding.
    const auto intero = [](double d, double scala) { return std::round(d * scala) / scala; };
    const double dx = x - linea.X1 - (Disegno().ScaleLeft - trascina.scalaSinistra);
    const double dy = y - linea.Y1 - (Disegno().ScaleTop - trascina.scalaAlto);
    const double px = intero(dx, Disegno().ScalaX()), py = intero(dy, Disegno().ScalaY());
    if (std::abs(px) > kSoglia || std::abs(py) > kSoglia || ZoomImpostato())
        SpostaVista(trascina.finestra, px, py);
    if (FinestraZoom == trascina.ultimo.zoom) return;
    Ridis_Click();
    trascina.ultimo = Ora();
}

void MostraCoordinate(double x, double y) {
    if (!FormTelva.VisCoord.Checked) return;
    std::string testo;
    if (const int i = NodoSottoPuntatore(x, y); i >= 0) {
        const int p = PuntoNodo[i];
        for (const double c : {PuntoX[p], PuntoY[p], PuntoZ[p]})
            testo += (testo.empty() ? "" : ", ") + CitaNumero(ParteIntera(c));
        testo += " [N" + TestoNumero(NomeNodo[i]) + "]";
    }
    FormTelva.LabCoord.Caption = testo;
}

// A begun selection window is given up; one that is awaited is still awaited afterwards.
void ArmaVista(Gesto armato, const char *titolo) {
    ChiudiFinestraInCorso();
    Entra(Gesto::TastoLibero);
    Entra(armato);
    FormTelva.SottoFunAttiva.Caption = titolo;
}

} // namespace

void Finestra_Click() {
    FinisciGesti();
    AzzeraInput();
    AttendiFinestra(Gesto::FinestraAttesa);
}

void ZoomIn_Click() { ArmaVista(Gesto::ZoomArmato, "Zoom"); }

void Sposta_Click() { ArmaVista(Gesto::SpostaArmato, "Sposta"); }

void Disegno_MouseDown(int button, int, double x, double y) {
    UltimoTasto = static_cast<std::int16_t>(button);
    switch (button) {
    case kDestro: FormTelva.MostraPopup(FormTelva.Visualizza); break;
    case kCentrale: InizioTrascina(x, y); break;
    case kSinistro: TastoSinistro(x, y); break;
    default: break;
    }
}

void Disegno_MouseMove(int button, int, double x, double y) {
    if (button == kCentrale) {
        const RiquadroDisegno &d = Disegno();
        const double px = d.XPixel(x), py = d.YPixel(y);
        Trascina(x, y);
        // The same pixel, in the scale that the drag has moved.
        x = d.XEvento(d.XDaPixel(px));
        y = d.YEvento(d.YDaPixel(py));
    }
    if (InCorso(Gesto::SpostaAperto)) {
        Disegno().LineSposta.X2 = x;
        Disegno().LineSposta.Y2 = y;
    }
    if (PrimoAngolo == 1) TendiRettangolo(x, y);
    MostraCoordinate(x, y);
    PuntatoreSu(x, y);
}

void Disegno_MouseLeave() {
    FormTelva.LabCoord.Caption = "";
    PuntatoreFuori();
}

void Disegno_MouseUp(int button, int, double, double) {
    if (button == kCentrale) Entra(Gesto::TastoLibero);
}

void Disegno_CatturaPersa() { Entra(Gesto::TastoLibero); }

void Disegno_DblClick() {
    if (UltimoTasto != kCentrale) return;
    Entra(Gesto::TastoLibero);
    Ottimizza_Click();
}

void ChiudiFinestraInCorso() {
    if (InCorso(Gesto::FinestraAperta)) Entra(Gesto::FinestraAttesa);
    if (InCorso(Gesto::AutomaticaAperta)) RiprendiDiretta();
}

void AzzeraPuntatore() {
    FinisciGesti();
    PuntatoreFuori();
    UltimoTasto = 0;
    primoX = primoY = 0;
}

} // namespace telva
