#include "view/posti.h"

#include "model/struttura.h"
#include "view/proiezione.h"

#include <climits>

namespace telva {
namespace {

constexpr int kLontano = INT_MIN; // no pixel has this x

} // namespace

PostiNodi::PostiNodi(RiquadroDisegno &d) : d_(d) {
    posti_.reserve(static_cast<std::size_t>(NumNodi));
    for (int i = 0; i < NumNodi; ++i) posti_.push_back(Calcola(i));
}

Pixel PostiNodi::Calcola(int i) const {
    bool fuori = false;
    const Pixel p = d_.InPixel(XNodo(i), YNodo(i), fuori);
    return fuori ? Pixel{kLontano, 0} : p;
}

// Bars may name a node that the structure does not have.
Pixel PostiNodi::Leggi(int i) const {
    const auto posto = static_cast<std::size_t>(i);
    return posto < posti_.size() ? posti_[posto] : Calcola(i);
}

std::optional<Pixel> PostiNodi::InPixel(int i) const {
    const Pixel p = Leggi(i);
    return p.x == kLontano ? std::nullopt : std::optional(p);
}

void PostiNodi::Linea(int i, int j, std::uint32_t colore, const Trattini &t) const {
    const Pixel a = Leggi(i), b = Leggi(j);
    if (a.x != kLontano && b.x != kLontano)
        d_.Line(a, b, colore, t);
    else
        d_.Line(XNodo(i), YNodo(i), XNodo(j), YNodo(j), colore, t);
}

} // namespace telva
