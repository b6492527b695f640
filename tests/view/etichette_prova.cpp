#include "model/opzioni_cond.h"
#include "model/struttura.h"
#include "sostegno/Banco.h"
#include "ui/controlli/FormTelva.h"
#include "view/FunzDisegno.h"
#include "view/etichette.h"
#include "view/inquadra.h"
using namespace telva;
using namespace telva::prove;

TEST_F(Banco, EtichetteTestiEPosti) {
    LavoroProva l = Telaio();
    l.aste.push_back({1, 5, 13}), l.aste.push_back({2, 4, 14}); // two braces that cross
    for (auto &g : l.gusci) g.tratto = 0, g.spessore = 1;
    l.gusci[1].colore = 10, l.sezioni[1] = 9, Apri(l);
    Opzioni[kOpzBaseTesto] = 2.0, Opzioni[kOpzAltezzaTesto] = 5.0, Opzioni[kOpzDistanzaTesto] = 2.0;
    const auto disegna = [](std::string cifre) { // 7, 8, 9, 24; 14..23, 25, as far as they go
        constexpr int kVoci[] = {7, 8, 9, 24, 14, 15, 16, 17, 18, 19, 20, 21, 22, 23, 25};
        for (std::size_t k = 0; k < cifre.size(); ++k) Opzioni[kVoci[k]] = double(cifre[k] - '0');
        DisegnaStruttura();
        return FormTelva.Disegno.Immagine();
    };
    disegna("00000110110010");
    EXPECT_EQ(EtichettaNodo(4) + EtichettaAsta(6) + EtichettaGuscio(2), "V1A7 S2 O7M3");
    Superficie nuda = disegna("000011111111111");
    EXPECT_EQ(EtichettaAsta(6) + EtichettaGuscio(2), "A7 M9 S2 O7 C0G3 M3 S1");
    // How many pixels labels light, all of them within the box and none of an element.
    const auto scritti = [&](std::string cifre, double x0, double y0, double x1, double y1) {
        const Superficie s = disegna(cifre);
        int conto = 0;
        for (int n = 0; n < s.Larghezza() * s.Altezza(); ++n) {
            if (s.Riga(0)[n] == nuda.Riga(0)[n]) continue;
            const double x = FormTelva.Disegno.XDaPixel(n % s.Larghezza()),
                         y = FormTelva.Disegno.YDaPixel(n / s.Larghezza());
            EXPECT_TRUE(nuda.Riga(0)[n] == 0 && x > x0 && x < x1 && y > y0 && y < y1) << cifre << x;
            ++conto;
        }
        return conto;
    };
    int somma = 0; // every kind is there, and together they do not cover each other
    for (const char *cifre : {"1000", "0100", "0010", "0001"})
        somma += scritti(cifre, -99, -99, 299, 299);
    EXPECT_EQ(scritti("1111", -99, -99, 299, 299), somma);
    NumNodi = NumAste = NumGusci = NumElCont = 1; // node (0,0), shell up to (100,100)
    for (const auto &[i, j, y, yNodo] :
         {std::tuple{0, 4, 54.0, -8.5}, {3, 1, 40.0, 2.5}, {0, 1, 1.5, 2.5}}) {
        NodoIAsta[0] = static_cast<std::int16_t>(i), NodoJAsta[0] = static_cast<std::int16_t>(j);
        nuda = disegna("0000");
        EXPECT_GT(scritti("01000010000", 47.5, y, 52.5, y + 6), 9);  // below a falling bar
        EXPECT_GT(scritti("100010", 2.5, yNodo, 7.5, yNodo + 6), 9); // where no bar passes
    }
    EXPECT_GT(scritti("00100000000100", 47.5, 47, 52.5, 53), 9);
    NodoJAsta[0] = 3, nuda = disegna("0000"); // upright: the name runs along it
    EXPECT_GT(scritti("000100000000001", -7.5, 33.5, -1.5, 66.5), 99);
    AsteElCont(0, 0) = 30000; // no bar has this name
    EXPECT_EQ(scritti("0001", 0, 0, 0, 0) + scritti("111100000000000", 0, 0, 0, 0), 0);
    FinestraZoom = {62, 9, 65, 35}, Adatta(), nuda = disegna("0000"); // the bar is out of sight
    EXPECT_GT(scritti("01000011111", 1, 47, 31, 53), 499);            // but not all of its label
}
