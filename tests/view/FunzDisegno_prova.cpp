// Painting, where the pictures to compare with do not show it.
#include "model/opzioni_cond.h"
#include "model/struttura.h"
#include "sostegno/Banco.h"
#include "ui/controlli/FormTelva.h"
#include "view/FunzDisegno.h"
#include "view/inquadra.h"
#include "view/proiezione.h"
#include "view/visibile.h"

#include <algorithm>

namespace telva::prove {

// The frame from the front, its bars only.
struct FunzDisegno : Banco {
    RiquadroDisegno &d = FormTelva.Disegno;

    FunzDisegno() {
        Apri(Telaio());
        FormTelva.NodiAtt.Value = FormTelva.GusciAtt.Value = false;
        FormTelva.VisAssi.Checked = false;
        Opzioni[kOpzTestiElCont] = 0.0;
    }
    const Superficie &Dipingi() {
        CalcolaAttivi();
        DisegnaStruttura();
        return d.Immagine();
    }
    std::ptrdiff_t Accesi() {
        const Superficie &s = Dipingi();
        const std::uint32_t *inizio = s.Riga(0), *fine = s.Riga(s.Altezza());
        return fine - inizio - std::count(inizio, fine, 0U);
    }
    // Lit pixels of the column through this place, from 40 units below to 40 above.
    int Spessore(double x, double y) {
        const Superficie &s = Dipingi();
        int accesi = 0;
        for (int riga = int(d.YPixel(y + 40)); riga < d.YPixel(y - 40); ++riga)
            accesi += s.Leggi(int(d.XPixel(x)), riga) != 0;
        return accesi;
    }
};

TEST_F(FunzDisegno, LaPennaEUnNumeroInteroDaUno) {
    struct Caso {
        double opzione;
        int larga;
    };
    for (const Caso &c : {Caso{.opzione = -3, .larga = 1},
                          {.opzione = 0, .larga = 1},
                          {.opzione = 2.5, .larga = 2}, // halves to the even one
                          {.opzione = 3.5, .larga = 4}}) {
        Opzioni[kOpzPennaNonSel] = c.opzione;
        EXPECT_EQ(Spessore(50, 0), c.larga) << c.opzione;
    }
}

TEST_F(FunzDisegno, LaTernaNonSiSpostaCoiTagliDellaVista) {
    FormTelva.AsteAtt.Value = false;
    FormTelva.VisAssi.Checked = true;
    const Superficie prima = Dipingi();
    EXPECT_GT(Accesi(), 80);
    FinestraZoom = {.primaX = 60, .secondaX = -40, .primaY = 150, .secondaY = 20};
    Adatta();
    const Superficie &dopo = Dipingi();
    EXPECT_TRUE(std::equal(prima.Riga(0), prima.Riga(prima.Altezza()), dopo.Riga(0)));
    OpzInt[2] = 0;
    EXPECT_EQ(Accesi(), 0) << "without lengths";
}

TEST_F(FunzDisegno, SenzaProiezioneIlRiquadroEVuoto) {
    EXPECT_GT(Accesi(), 0);
    AzzeraProiezione();
    EXPECT_EQ(Accesi(), 0);
}

} // namespace telva::prove
