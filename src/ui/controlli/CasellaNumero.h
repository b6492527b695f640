#pragma once
// A box for one number. What has been typed counts once it has been taken over; until then, and
// when it is no number, the text before it does.

#include "platform/controlli.h"
#include "platform/numeri.h"

#include <cmath>
#include <limits>
#include <optional>
#include <string>

namespace telva {

class CasellaNumero : public CasellaTesto {
  public:
    using CasellaTesto::CasellaTesto;

    // What the number may be at most, either way.
    double limite = std::numeric_limits<double>::max();

    // True when the text that stands there is such a number.
    bool Valida() const { return Numero(Text()).has_value(); }
    // Takes the text over, when it is a number.
    void Accogli() {
        if (Valida()) accolto_ = Text();
    }
    // The text last taken over, and its number (0 when there was none).
    const std::string &Accolto() const { return accolto_; }
    double Valore() const { return Numero(accolto_).value_or(0); }
    void Ripristina() { Text = accolto_; }
    // The text at program start.
    void Parti(const std::string &testo) { Text = accolto_ = testo; }

  private:
    std::optional<double> Numero(const std::string &testo) const {
        const auto numero = NumeroStretto(ConPunto(testo));
        return numero && std::abs(*numero) <= limite ? numero : std::nullopt;
    }

    std::string accolto_;
};

} // namespace telva
