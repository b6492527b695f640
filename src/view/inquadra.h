#pragma once
// Which part of the projected structure fills the picture box.

namespace telva {

// Window in drawing coordinates. "First" is always the larger value of an axis.
struct FinestraDisegno {
    double primaX = 0, secondaX = 0, primaY = 0, secondaY = 0;
    friend bool operator==(const FinestraDisegno &, const FinestraDisegno &) = default;
};

extern FinestraDisegno FinestraZoom;  // set by zoom, pan and wheel; zeros = fit to the structure
extern FinestraDisegno FinestraVista; // what is shown, before the margins of the fit

// True while a zoom window is set.
bool ZoomImpostato();

// Puts the two corners in order and makes them the zoom window.
void ImpostaZoom(double xa, double ya, double xb, double yb);

// `partenza` moved by (-dx, -dy) becomes the zoom window.
void SpostaVista(const FinestraDisegno &partenza, double dx, double dy);

// What a pan by two clicks starts from: the zoom window, or what is shown when none is set.
FinestraDisegno FinestraDaSpostare();

// Wheel by d steps (positive = zoom in). False when the window has become too small to redraw.
bool ApplicaRotella(double d);

// Activation, then the user scale of Disegno: the chosen window undistorted, centred, with
// margins. A window without area leaves the scale as it is; in a box of another size its centre and
// its units per pixel.
void Adatta();

// Adatta on the whole structure, without a zoom window. What has no area and does not lie in the
// old scale is shown by its length.
void AdattaTutto();

void AzzeraVista();

} // namespace telva
