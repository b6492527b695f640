// Pixels of the pens, at random: exact clipping, and the plain geometric definition of each shape.
#include "platform/superficie.h"
#include <cmath>
#include <gtest/gtest.h>
#include <random>

TEST(Superficie, DefinizioneRitaglioEVerso) {
    std::mt19937 sorte(1);
    const auto fra = [&](int da, int a) { return std::uniform_int_distribution(da, a)(sorte); };
    telva::Superficie parte, tutta;
    tutta.Ridimensiona(260, 260);
    for (int giro = 0; giro < 4000; ++giro) {
        const int che = giro % 4, penna = fra(2, 12), raggio = fra(1, 25), px = fra(-20, 60),
                  py = fra(-20, 60), passo = giro % 8 == 4 ? 1 << 21 : 1; // some ends far away
        const int dx = fra(-60, 60) * passo * !!(giro % 5),
                  dy = fra(-60, 60) * passo * !!(giro % 7);
        const telva::Tratteggio t{static_cast<std::uint32_t>(sorte()), fra(1, 32)};
        const auto disegna = [&](telva::Superficie &s, int m, int verso) { // m: margin
            const telva::Pixel a{px + m - dx * verso, py + m - dy * verso},
                b{px + m + dx * verso, py + m + dy * verso};
            s.Riempi(0);
            if (che == 0) s.Linea(a, b, 7);
            if (che == 1) s.LineaTratteggiata(a, b, 7, t);
            if (che == 2) s.LineaLarga(a, b, penna, 7);
            if (che == 3) s.Cerchio({px + m, py + m}, raggio, penna - 1, 7);
        };
        parte.Ridimensiona(fra(1, 40), fra(1, 40));
        disegna(parte, 0, 1);
        disegna(tutta, 100, -1); // whole, and from the other end
        const double c = penna % 2 == 0 ? -0.5 : 0, l2 = double(dx) * dx + double(dy) * dy;
        const int lungo = std::max(std::abs(dx), std::abs(dy)), larga = parte.Larghezza();
        for (int n = 0; n < parte.Altezza() * larga; ++n) {
            const int y = n / larga, x = n % larga, qx = x - px, qy = y - py;
            const bool acceso = parte.Leggi(x, y) != 0;
            ASSERT_TRUE(passo > 1 || acceso == (tutta.Leggi(x + 100, y + 100) != 0)) << giro;
            double oltre = 0; // how far beyond the reach of the shape's middle line
            if (che == 0) {   // half a pixel across the longer direction, in integers
                const bool entro = std::abs(std::abs(dx) == lungo ? qx : qy) <= lungo;
                oltre = 2 * std::abs(double(qx) * dy - double(qy) * dx) - (entro ? lungo : -1);
            } else if (che == 2) { // the middle of an even pen lies half a pixel up and left
                const double ex = qx - c, ey = qy - c;
                const double k = l2 > 0 ? std::clamp((ex * dx + ey * dy) / l2, -1.0, 1.0) : 0;
                oltre = std::hypot(ex - k * dx, ey - k * dy) - penna / 2.0;
            } else if (che == 3)
                oltre = std::abs(std::hypot(qx, qy) - raggio) - (penna - 1) / 2.0;
            ASSERT_TRUE(che == 1 || (acceso ? oltre <= 1e-6 : oltre >= -1e-6)) << giro << ": " << n;
        }
    }
}
