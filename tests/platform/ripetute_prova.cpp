// What need not be drawn twice: wide lines that stand there already, and pictures between two
// events that come together.
#include "platform/disegno.h"

#include <gtest/gtest.h>

namespace telva::prove {
namespace {

TEST(Trattenute, DiVarieImmaginiUnaSola) {
    Modulo modulo{"prova"};
    RiquadroDisegno d{&modulo, "Disegno"};
    int immagini = 0;
    d.Ridisegna = [&] { ++immagini; };
    d.Trattieni();
    EXPECT_TRUE(d.Rimandata());
    d.Trattieni(); // nested
    EXPECT_TRUE(d.Rimandata());
    d.Rilascia();
    EXPECT_EQ(immagini, 0) << "still held by the first";
    d.Rilascia();
    EXPECT_EQ(immagini, 1);
    EXPECT_FALSE(d.Rimandata()) << "nothing is held any more";
    d.Trattieni();
    d.Rilascia();
    EXPECT_EQ(immagini, 1) << "none was asked for";
}

// Equal wide lines in one colour are drawn once: whatever comes between has to make them again.
TEST(Ripetute, UnaLineaLargaRestaSopraCioCheEVenutoPrima) {
    struct Caso {
        const char *nome;
        void (*inMezzo)(Superficie &s);
    };
    constexpr std::uint32_t kLinea = 7, kAltro = 9;
    constexpr Pixel a{10, 10}, b{30, 20}, mezzo{20, 15};
    for (const Caso &c :
         {Caso{.nome = "nothing", .inMezzo = [](Superficie &) {}},
          {.nome = "the background", .inMezzo = [](Superficie &s) { s.Riempi(0); }},
          {.nome = "a thin line",
          .inMezzo =
               [](Superficie &s) {
                   s.Linea({0, 15}, {39, 15}, kAltro);
               }},
          {.nome = "a dashed line",
          .inMezzo =
               [](Superficie &s) {
                   s.LineaTratteggiata({20, 0}, {20, 29}, kAltro, {1, 1});
               }},
          {.nome = "a wide line",
          .inMezzo =
               [](Superficie &s) {
                   s.LineaLarga({20, 0}, {20, 29}, 5, kAltro);
               }},
          {.nome = "a circle", .inMezzo = [](Superficie &s) { s.Cerchio(mezzo, 0, 9, kAltro); }},
          {.nome = "another surface", .inMezzo = [](Superficie &s) {
               Superficie vuota;
               vuota.Ridimensiona(40, 30);
               vuota.Riempi(0);
               s.CopiaZona(vuota, {0, 0, 40, 30});
           }}}) {
        Superficie s;
        s.Ridimensiona(40, 30);
        s.Riempi(0);
        s.LineaLarga(a, b, 4, kLinea);
        c.inMezzo(s);
        s.LineaLarga(b, a, 4, kLinea); // from the other end, as the neighbour's side
        EXPECT_EQ(s.Leggi(mezzo.x, mezzo.y), kLinea) << "after " << c.nome;
    }
}

} // namespace
} // namespace telva::prove
