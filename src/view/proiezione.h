#pragma once
// View transform: rotation from the three view angles, parallel projection of the points, axis
// directions, and the extents shown in the coordinate-interval boxes.

#include "model/struttura.h"
#include "platform/controlli.h"

namespace telva {

extern double MatRot[4][4];                // rows and columns 1..3
extern Tabella<double, kPunti> XDis, YDis; // drawing coordinates of the points
struct Direzione {
    double x = 0, y = 0;
};
extern Direzione DirAsseX, DirAsseY, DirAsseZ; // projected unit vectors of the axes

// Rotation from angles in degrees; b comes with its sign already reversed.
void CalcolaMatrice(double a, double b, double c);
double ProiettaX(double x, double y, double z);
double ProiettaY(double x, double y, double z);

// Takes the Angolo boxes over and projects everything. When one of them is no number, none is taken
// and the view stays as it was: false.
bool ProiettaNodi();

// False as long as nothing has been projected, as after a structure that could not be read.
bool Proiettata();

// Writes the extents of the model, in whole units, into the interval boxes: 1 = X, 2 = Y, 3 = Z,
// 4 = all three; any other value does nothing.
void AggiornaIntervalli(unsigned char k);

// Extent of the model as read, in its units: axis 0 X, 1 Y, 2 Z.
struct EstremiAsse {
    double minimo = 0, massimo = 0;
};
EstremiAsse EstremiModello(int asse);

// Projection of node i.
inline double XNodo(int i) { return XDis[PuntoNodo[i]]; }
inline double YNodo(int i) { return YDis[PuntoNodo[i]]; }

void AzzeraProiezione();

} // namespace telva
