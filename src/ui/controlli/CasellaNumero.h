#pragma once
// A box for one number. What has been typed counts once it has been taken over; until then, and
// when it is no number, the text before it does.

#include "platform/controlli.h"
#include "platform/numeri.h"

#include <string>

namespace telva {

class CasellaNumero : public CasellaTesto {
  public:
    using CasellaTesto::CasellaTesto;

    // True when the text that stands there is a number.
    bool Valida() const { return NumeroStretto(Text()).has_value(); }
    // Takes the text over, when it is a number.
    void Accogli() {
        if (Valida()) accolto_ = Text();
    }
    // The text last taken over, and its number (0 when there was none).
    const std::string &Accolto() const { return accolto_; }
    double Valore() const { return NumeroStretto(accolto_).value_or(0); }
    void Ripristina() { Text = accolto_; }
    // The text at program start.
    void Parti(const std::string &testo) { Text = accolto_ = testo; }

  private:
    std::string accolto_;
};

} // namespace telva
