#pragma once
// An outline in drawing units that is shown over the picture.

#include <vector>

namespace telva {

struct Sagoma {
    struct Linea {
        double x1 = 0, y1 = 0, x2 = 0, y2 = 0;
        friend bool operator==(const Linea &, const Linea &) = default;
    };
    struct Cerchio {
        double x = 0, y = 0;
        double raggio = 0; // pixels
        friend bool operator==(const Cerchio &, const Cerchio &) = default;
    };
    std::vector<Linea> linee;
    std::vector<Cerchio> cerchi;
    bool Vuota() const { return linee.empty() && cerchi.empty(); }
    friend bool operator==(const Sagoma &, const Sagoma &) = default;
};

} // namespace telva
