// Wide lines that stand there already are not drawn twice.
#include "platform/disegno.h"

#include <functional>
#include <gtest/gtest.h>

namespace telva::prove {
namespace {

// Equal wide lines in one colour are drawn once: whatever comes between has to make them again.
TEST(Ripetute, UnaLineaLargaRestaSopraCioCheEVenutoPrima) {
    constexpr std::uint32_t kLinea = 7, kAltro = 9;
    constexpr Pixel a{10, 10}, b{30, 20}, mezzo{20, 15}, sopra{20, 0}, sotto{20, 29};
    constexpr ZonaPixel tutto{0, 0, 40, 30};
    constexpr Tratteggio continuo{1, 1};
    Superficie s, vuota;
    for (Superficie *superficie : {&s, &vuota}) {
        superficie->Ridimensiona(40, 30);
        superficie->Riempi(0);
    }
    const std::pair<const char *, std::function<void()>> inMezzo[] = {
        {"nothing", [] {}},
        {"the background", [&] { s.Riempi(0); }},
        {"a thin line", [&] { s.Linea(sopra, sotto, kAltro); }},
        {"a dashed line", [&] { s.LineaTratteggiata(sopra, sotto, kAltro, continuo); }},
        {"a wide line", [&] { s.LineaLarga(sopra, sotto, 5, kAltro); }},
        {"a circle", [&] { s.Cerchio(mezzo, 0, 9, kAltro); }},
        {"another surface", [&] { s.CopiaZona(vuota, tutto); }}};
    for (const auto &[che, disegna] : inMezzo) {
        s.Riempi(0);
        s.LineaLarga(a, b, 4, kLinea);
        disegna();
        s.LineaLarga(b, a, 4, kLinea); // from the other end, as the neighbour's side
        EXPECT_EQ(s.Leggi(mezzo.x, mezzo.y), kLinea) << "after " << che;
    }
}

} // namespace
} // namespace telva::prove
