// The pointer on the drawing: direct pick, selection window, zoom window, pan by two clicks and pan
// by dragging with the middle button, as one state machine; and the coordinate read-out.

#include "ui/FormTelva_gestori.h"

#include "model/struttura.h"
#include "platform/numeri.h"
#include "selection/finestra_sel.h"
#include "selection/schede_sel.h"
#include "selection/selezione.h"
#include "selection/trappola.h"
#include "ui/controlli/FormTelva.h"

#include <algorithm>
#include <cmath>

namespace telva {

std::int16_t PrimoAngolo = 0;        // 1 = first corner placed, second awaited
std::int16_t SpostaInCorso = 0;      // 1 = first point of a two-click pan placed
std::int16_t ModoZoom = 0;           // 1 from the command Zoom until its rectangle is complete
std::int16_t ModoSposta = 0;         // 1 from the command Sposta until the pan is complete
std::int16_t UltimoTasto = 0;        // button of the last press: 1 left, 2 right, 4 middle
std::int16_t FinestraAutomatica = 0; // 1 = the window was opened by a pick that hit nothing

namespace {

constexpr int kSinistro = 1, kDestro = 2, kCentrale = 4;
// Virtual keys; + and - stand among the letters and on the number pad.
constexpr int kTastoSinistra = 37, kTastoSu = 38, kTastoDestra = 39, kTastoGiu = 40;
constexpr int kTastoPiu = 187, kTastoMeno = 189, kTastoPiuCifre = 107, kTastoMenoCifre = 109;
constexpr double kSoglia = 0.0001; // drawing units: shorter moves are none

double primoX = 0, primoY = 0; // first corner

// The view when the middle button went down: window and corner of the scale; and the zoom window
// that the drag has set last.
struct {
    bool attivo = false;
    FinestraDisegno finestra;
    double scalaSinistra = 0, scalaAlto = 0;
    FinestraDisegno ultima;
} trascina;

RiquadroDisegno &Disegno() { return FormTelva.Disegno; }

void RipristinaSottoFun() {
    Disegno().MousePointer = CodSottoFun == kFinestra ? Puntatore::Croce : Puntatore::Predefinito;
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

bool PrimoPuntoSposta(double x, double y) {
    if (SpostaInCorso != 0 || ModoSposta != 1) return false;
    SpostaInCorso = 1;
    Segmento &linea = Disegno().LineSposta;
    linea.X1 = linea.X2 = x;
    linea.Y1 = linea.Y2 = y;
    linea.Visible = true;
    return true;
}

bool SecondoPuntoSposta(double x, double y) {
    if (SpostaInCorso != 1 || ModoSposta != 1) return false;
    Segmento &linea = Disegno().LineSposta;
    linea.X2 = x;
    linea.Y2 = y;
    const double dx = linea.X2 - linea.X1, dy = linea.Y2 - linea.Y1;
    if (!(std::abs(dx) > kSoglia || std::abs(dy) > kSoglia)) return false;
    AggiornaFinestraVista(); // the zoom window, or the whole structure when there is none
    SpostaVista(FinestraVista, dx, dy);
    ModoSposta = SpostaInCorso = 0;
    linea.Visible = false;
    Ridis_Click();
    RipristinaSottoFun();
    return true;
}

void TendiRettangolo(double x, double y) {
    // The pointer comes in single precision: so must the edges, or half of all views would lose
    // their first column of pixels to the rounding.
    const auto singola = [](double v) { return double(static_cast<float>(v)); };
    const RiquadroDisegno &d = Disegno();
    if (x < singola(d.ScaleLeft) || x > singola(d.ScaleLeft + d.ScaleWidth) ||
        y > singola(d.ScaleTop) || y < singola(d.ScaleTop + d.ScaleHeight))
        return;
    Rettangolo &shape = Disegno().Shape;
    shape.Left = std::min(primoX, x);
    shape.Width = std::abs(x - primoX);
    shape.Top = std::max(primoY, y); // upper edge as it is seen
    shape.Height = std::abs(y - primoY);
}

bool PrimoAngoloRettangolo(double x, double y) {
    if (PrimoAngolo != 0 || !(CodSottoFun == kFinestra || ModoZoom == 1)) return false;
    primoX = x;
    primoY = y;
    Rettangolo &shape = Disegno().Shape;
    shape.Left = x;
    shape.Top = y;
    shape.Width = shape.Height = 0;
    shape.Visible = true;
    PrimoAngolo = 1;
    return true;
}

// Without a running function there is nothing that a pick could add or remove.
bool SelezioneDirettaPronta() {
    return CodSottoFun == kDiretta && ModoZoom == 0 && CodFunAttiva != kNessunaFunzione;
}

void Scegli(int button, int shift, float x, float y) {
    FormTelva.MousePointer = Puntatore::Clessidra;
    const std::int16_t nome = SelezioneDiretta(x, y);
    if (nome < 1) { // nothing there: the same click opens a selection window
        FinestraAutomatica = 1;
        Finestra_Click();
        Disegno_MouseDown(button, shift, x, y);
    } else {
        SelezionaElementoPerNome(TestoNumero(nome));
    }
    FormTelva.MousePointer = Puntatore::Predefinito;
}

// After an automatic window direct pick goes on.
void RiprendiDiretta() {
    if (FinestraAutomatica != 1) return;
    FinestraAutomatica = 0;
    CodSottoFun = kDiretta;
    AbilitaComandi();
    FormTelva.SottoFunAttiva.Caption = "Selezione diretta";
    Disegno().MousePointer = Puntatore::Predefinito;
}

void SelezionaRettangolo(const Rettangolo &r) {
    FormTelva.MousePointer = Puntatore::Clessidra;
    SelezionaFinestra(r.Left, r.Top, r.Width, r.Height);
    FormTelva.MousePointer = Puntatore::Predefinito;
    RiprendiDiretta();
}

void ZoomRettangolo(const Rettangolo &r) {
    ImpostaZoom(r.Left, r.Top, r.Left + r.Width, r.Top - r.Height);
    ModoZoom = 0;
    Ridis_Click();
    RipristinaSottoFun();
}

void SecondoAngolo(double x, double y) {
    if (PrimoAngolo != 1) return;
    TendiRettangolo(x, y);
    const Rettangolo &shape = Disegno().Shape;
    PrimoAngolo = 0;
    Disegno().Shape.Visible = false;
    if (shape.Width * shape.Height == 0) return; // no area: nothing, and the mode stays
    if (ModoZoom == 1)
        ZoomRettangolo(shape);
    else if (CodSottoFun == kFinestra)
        SelezionaRettangolo(shape);
}

void TastoSinistro(int shift, float x, float y) {
    if (PrimoPuntoSposta(x, y) || SecondoPuntoSposta(x, y) || PrimoAngoloRettangolo(x, y)) return;
    if (PrimoAngolo != 1 && SelezioneDirettaPronta())
        Scegli(kSinistro, shift, x, y);
    else
        SecondoAngolo(x, y);
}

void InizioTrascina(double x, double y) {
    Segmento &linea = Disegno().LineSposta;
    linea.Visible = SpostaInCorso == 1;
    linea.X1 = linea.X2 = x;
    linea.Y1 = linea.Y2 = y;
    if (!ZoomImpostato()) AggiornaFinestraVista();
    trascina = {true, ZoomImpostato() ? FinestraZoom : FinestraVista, Disegno().ScaleLeft,
                Disegno().ScaleTop, FinestraZoom};
}

// The pointer's place is told in a scale that the drag itself moves: both are brought back to the
// scale of the press, in whole pixels, so that the drawing sticks to the pointer.
void Trascina(double x, double y) {
    if (!trascina.attivo) return;
    if (!(FinestraZoom == trascina.ultima)) { // wheel or command in between: on from what it shows
        InizioTrascina(x, y);
        return;
    }
    const Segmento &linea = Disegno().LineSposta;
    // Whole pixels, each way by its own scale: they differ while an old scale stays in a new box.
    const auto intero = [](double d, double scala) { return std::round(d * scala) / scala; };
    const double dx = x - linea.X1 - (Disegno().ScaleLeft - trascina.scalaSinistra);
    const double dy = y - linea.Y1 - (Disegno().ScaleTop - trascina.scalaAlto);
    const double px = intero(dx, Disegno().ScalaX()), py = intero(dy, Disegno().ScalaY());
    if (std::abs(px) > kSoglia || std::abs(py) > kSoglia || ZoomImpostato())
        SpostaVista(trascina.finestra, px, py);
    if (FinestraZoom == trascina.ultima) return;
    trascina.ultima = FinestraZoom;
    Ridis_Click();
}

void MostraCoordinate(double x, double y) {
    if (!FormTelva.VisCoord.Checked) return;
    std::string testo;
    if (const int i = NodoSottoPuntatore(x, y); i >= 0) {
        const int p = PuntoNodo[i];
        for (const double c : {PuntoX[p], PuntoY[p], PuntoZ[p]})
            testo += (testo.empty() ? "" : ", ") + TestoNumero(ParteIntera(c));
        testo += " [N" + TestoNumero(NomeNodo[i]) + "]";
    }
    FormTelva.LabCoord.Caption = testo;
}

} // namespace

void ZoomIn_Click() {
    ChiudiFinestraInCorso();
    AnnullaElastici();
    ModoZoom = 1;
    FormTelva.SottoFunAttiva.Caption = "Zoom";
    Disegno().MousePointer = Puntatore::Croce;
}

void Sposta_Click() {
    ChiudiFinestraInCorso();
    AnnullaElastici();
    ModoSposta = 1;
    FormTelva.SottoFunAttiva.Caption = "Sposta";
    Disegno().MousePointer = Puntatore::Ridimensiona;
}

void Disegno_MouseDown(int button, int shift, float x, float y) {
    UltimoTasto = static_cast<std::int16_t>(button);
    switch (button) {
    case kDestro: FormTelva.MostraPopup(FormTelva.Visualizza); break;
    case kCentrale: InizioTrascina(x, y); break;
    case kSinistro: TastoSinistro(shift, x, y); break;
    default: break;
    }
}

void Disegno_MouseMove(int button, int, float x, float y) {
    if (button == kCentrale) {
        const double sinistra = Disegno().ScaleLeft, alto = Disegno().ScaleTop;
        Trascina(x, y);
        // The same pixel, in the scale that the drag has moved.
        x += static_cast<float>(Disegno().ScaleLeft - sinistra);
        y += static_cast<float>(Disegno().ScaleTop - alto);
    }
    if (ModoSposta == 1 && SpostaInCorso == 1) {
        Disegno().LineSposta.X2 = x;
        Disegno().LineSposta.Y2 = y;
    }
    if (PrimoAngolo == 1 && (CodSottoFun == kFinestra || ModoZoom == 1)) TendiRettangolo(x, y);
    MostraCoordinate(x, y);
}

void Disegno_MouseUp(int button, int, float, float) {
    if (button == kCentrale) trascina.attivo = false;
}

void Disegno_CatturaPersa() { trascina.attivo = false; }

void Disegno_DblClick() {
    if (UltimoTasto != kCentrale) return;
    trascina.attivo = false;
    Ottimizza_Click();
}

void WheelCatcher1_Rotella(int passi) {
    if (ApplicaRotella(passi)) Ridis_Click();
}

bool Vista_KeyDown(int tasto) {
    const RiquadroDisegno &d = Disegno();
    // A tenth of the box, in whole pixels, towards what lies there.
    const double dx = d.LarghezzaPixel() / 10 / std::abs(d.ScalaX());
    const double dy = d.AltezzaPixel() / 10 / std::abs(d.ScalaY());
    const auto guarda = [](double x, double y) { // from what is shown, as far as it has a size
        const FinestraDisegno &f = FinestraVista;
        if (f.primaX == f.secondaX || f.primaY == f.secondaY) return;
        SpostaVista(FinestraVista, -x, -y);
        Ridis_Click();
    };
    switch (tasto) {
    case kTastoSinistra: guarda(-dx, 0); break;
    case kTastoSu: guarda(0, dy); break;
    case kTastoDestra: guarda(dx, 0); break;
    case kTastoGiu: guarda(0, -dy); break;
    case kTastoPiu:
    case kTastoPiuCifre: WheelCatcher1_Rotella(1); break;
    case kTastoMeno:
    case kTastoMenoCifre: WheelCatcher1_Rotella(-1); break;
    default: return false;
    }
    return true;
}

void AnnullaElastici() {
    PrimoAngolo = SpostaInCorso = ModoZoom = ModoSposta = 0;
    trascina.attivo = false;
    Disegno().Shape.Visible = false;
    Disegno().LineSposta.Visible = false;
}

void ChiudiFinestraInCorso() {
    if (PrimoAngolo != 1 || ModoZoom == 1) return;
    PrimoAngolo = 0;
    Disegno().Shape.Visible = false;
    RiprendiDiretta();
}

void AzzeraPuntatore() {
    AnnullaElastici();
    UltimoTasto = FinestraAutomatica = 0;
    primoX = primoY = 0;
}

} // namespace telva
