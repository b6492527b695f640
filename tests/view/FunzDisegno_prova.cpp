// Painting, where the pictures to compare with do not show it.
#include "model/opzioni_cond.h"
#include "model/struttura.h"
#include "sostegno/Banco.h"
#include "sostegno/Composta.h"
#include "ui/controlli/FormTelva.h"
#include "view/FunzDisegno.h"
#include "view/inquadra.h"
#include "view/tipi_linea.h"
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
    ~FunzDisegno() override { FormTelva.dpi = 96; }
    const Superficie &Dipingi() {
        Nota(Scritto("Dipingi", FormTelva.dpi, OpzioneNumero(kOpzPennaNonSel)));
        CalcolaAttivi();
        DisegnaStruttura();
        return d.Immagine();
    }
    std::ptrdiff_t Accesi() {
        const Superficie &s = Dipingi();
        const std::uint32_t *inizio = s.Riga(0), *fine = s.Riga(s.Altezza());
        return fine - inizio - std::count(inizio, fine, 0U);
    }
    // Lit pixels of the column through this place, from 15 units below to 15 above.
    int Spessore(double x, double y) {
        const Superficie &s = Dipingi();
        int accesi = 0;
        for (int riga = int(d.YPixel(y + 15)); riga < d.YPixel(y - 15); ++riga)
            accesi += s.Leggi(int(d.XPixel(x)), riga) != 0;
        return accesi;
    }
};

TEST_F(FunzDisegno, LaPennaEUnNumeroInteroDaUnoECresceConLaFinestra) {
    struct Caso {
        double dpi, opzione;
        int larga;
    };
    for (const Caso &c : {Caso{.dpi = 96, .opzione = -3, .larga = 1},
                          {.dpi = 96, .opzione = 2.5, .larga = 2}, // halves to the even one
                          {.dpi = 96, .opzione = 3.5, .larga = 4},
                          {.dpi = 120, .opzione = 1, .larga = 1},
                          {.dpi = 144, .opzione = 1, .larga = 2},
                          {.dpi = 192, .opzione = 0, .larga = 2},
                          {.dpi = 192, .opzione = 4, .larga = 8}}) {
        FormTelva.dpi = c.dpi;
        Opzioni[kOpzPennaNonSel] = c.opzione;
        EXPECT_EQ(Spessore(50, 0), c.larga) << c.opzione << " at " << c.dpi << " DPI";
    }
}

TEST_F(FunzDisegno, LaTernaNonSiSpostaCoiTagliDellaVista) {
    FormTelva.AsteAtt.Value = false;
    FormTelva.VisAssi.Checked = true;
    const Superficie prima = Dipingi();
    EXPECT_GT(Accesi(), 80);
    FinestraZoom = {.primaX = 60, .secondaX = -40, .primaY = 150, .secondaY = 20};
    Adatta();
    EXPECT_EQ(PixelDiversi(prima, Dipingi()), 0);
    OpzInt[kOpzLunghezzaAssi] = 0;
    EXPECT_EQ(Accesi(), 0) << "without lengths";
}

} // namespace telva::prove
