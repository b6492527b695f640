#include "view/proiezione.h"

#include "platform/citazione.h"
#include "platform/numeri.h"
#include "ui/controlli/FormTelva.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <initializer_list>

namespace telva {

double MatRot[4][4];
Tabella<double, kPunti> XDis{"XDis"}, YDis{"YDis"};
Direzione DirAsseX, DirAsseY, DirAsseZ;

namespace {

// The twelve digits of pi that every picture of a job has been made with.
constexpr double kPiGreco = 3.14159265359;

struct Estremi {
    double minimo[3], massimo[3];

    explicit Estremi(int nodo) {
        const int p = PuntoNodo[nodo];
        minimo[0] = massimo[0] = PuntoX[p];
        minimo[1] = massimo[1] = PuntoY[p];
        minimo[2] = massimo[2] = PuntoZ[p];
    }
    void Comprendi(int nodo) {
        const int p = PuntoNodo[nodo];
        const double c[3] = {PuntoX[p], PuntoY[p], PuntoZ[p]};
        for (int asse = 0; asse < 3; ++asse) {
            minimo[asse] = std::min(minimo[asse], c[asse]);
            massimo[asse] = std::max(massimo[asse], c[asse]);
        }
    }
};

// Element 0 seeds the nodes and is passed over among bars and shells: its ends are nodes anyway.
Estremi EstremiStruttura() {
    Estremi e(0);
    for (int i = 1; i < NumNodi; ++i) e.Comprendi(i);
    for (int b = 1; b < NumAste; ++b) {
        e.Comprendi(NodoIAsta[b]);
        e.Comprendi(NodoJAsta[b]);
    }
    for (int s = 1; s < NumGusci; ++s)
        for (int c = 0; c < NumeroAngoli(s); ++c)
            e.Comprendi(NodiGuscio[s][static_cast<std::size_t>(c)]);
    return e;
}

std::array<EstremiAsse, 3> estremiModello; // as AggiornaIntervalli last found them

// Nearest whole unit, halves up.
std::string TestoIntero(double valore) { return CitaNumero(ParteIntera(valore + 0.5)); }

} // namespace

void CalcolaMatrice(double gradiA, double gradiB, double gradiC) {
    const double a = gradiA * kPiGreco / 180, b = gradiB * kPiGreco / 180,
                 c = gradiC * kPiGreco / 180;
    const double sa = std::sin(a), ca = std::cos(a), sb = std::sin(b), cb = std::cos(b),
                 sc = std::sin(c), cc = std::cos(c);
    MatRot[1][1] = cb * cc;
    MatRot[1][2] = -sb;
    MatRot[1][3] = cb * sc;
    MatRot[2][1] = ca * sb * cc + sa * sc;
    MatRot[2][2] = ca * cb;
    MatRot[2][3] = ca * sb * sc - sa * cc;
    MatRot[3][1] = sa * sb * cc - ca * sc;
    MatRot[3][2] = sa * cb;
    MatRot[3][3] = sa * sb * sc + ca * cc;
}

double ProiettaX(double x, double y, double z) {
    return MatRot[1][1] * x + MatRot[1][2] * y + MatRot[1][3] * z;
}
double ProiettaY(double x, double y, double z) {
    return MatRot[3][1] * x + MatRot[3][2] * y + MatRot[3][3] * z;
}

bool ProiettaNodi() {
    for (const CasellaNumero &angolo : FormTelva.Angolo)
        if (!angolo.Valida()) return false;
    for (CasellaNumero &angolo : FormTelva.Angolo) angolo.Accogli();
    auto &angoli = FormTelva.Angolo;
    // The second angle turns the other way.
    CalcolaMatrice(angoli[0].Valore(), -angoli[1].Valore(), angoli[2].Valore());
    for (int p = 0; p < NumPunti; ++p) {
        XDis[p] = ProiettaX(PuntoX[p], PuntoY[p], PuntoZ[p]);
        YDis[p] = ProiettaY(PuntoX[p], PuntoY[p], PuntoZ[p]);
    }
    DirAsseX = {ProiettaX(1, 0, 0), ProiettaY(1, 0, 0)};
    DirAsseY = {ProiettaX(0, 1, 0), ProiettaY(0, 1, 0)};
    DirAsseZ = {ProiettaX(0, 0, 1), ProiettaY(0, 0, 1)};
    return true;
}

void AggiornaIntervalli(unsigned char k) {
    if (k < 1 || k > 4) return;
    const Estremi e = EstremiStruttura();
    Schiera<CasellaNumero, 2> *campi[3] = {&FormTelva.IntX, &FormTelva.IntY, &FormTelva.IntZ};
    for (int asse = 0; asse < 3; ++asse) {
        estremiModello[static_cast<std::size_t>(asse)] = {e.minimo[asse], e.massimo[asse]};
        if (k != 4 && k != asse + 1) continue;
        (*campi[asse])[0].Text = TestoIntero(e.minimo[asse]);
        (*campi[asse])[1].Text = TestoIntero(e.massimo[asse]);
    }
}

EstremiAsse EstremiModello(int asse) { return estremiModello[static_cast<std::size_t>(asse)]; }

bool Proiettata() {
    // Seen from wherever, at most one axis is a point.
    return StrutturaLetta &&
           (DirAsseX.x != 0 || DirAsseX.y != 0 || DirAsseY.x != 0 || DirAsseY.y != 0);
}

void AzzeraProiezione() {
    for (auto &riga : MatRot)
        for (double &valore : riga) valore = 0;
    XDis.Azzera();
    YDis.Azzera();
    DirAsseX = DirAsseY = DirAsseZ = {};
    estremiModello = {};
}

} // namespace telva
