// A continuous element that lists a bar which no bar is: never selected, never drawn, and in
// nobody's way.
#include "model/elementi.h"
#include "model/opzioni_cond.h"
#include "sostegno/Utente.h"
#include "ui/controlli/FormTelva.h"
#include "view/FunzDisegno.h"

namespace telva::prove {

// Bars 1 and 2 are also those of element 10; the broken ones come later, and so would be taken.
class ElContRotti : public Utente {
  protected:
    static LavoroProva Lavoro() {
        LavoroProva l = Telaio();
        l.elementi.push_back({30, "Oltre la tabella", {1, 2, 20001}});
        l.elementi.push_back({40, "Sotto zero", {-1, 1, 2}});
        return l;
    }
    void Comincia() {
        Apri(Lavoro());
        Tipo(kElContTipo);
        Menu("Aggiungi");
    }
};

TEST_F(ElContRotti, NonSiPrendonoInNessunModo) {
    Comincia();
    Clic(50, 0);
    EXPECT_EQ(Lista(), "10,10") << "a click on bar 1";
    Menu("RimTutto");

    Menu("Tutto");
    EXPECT_EQ(Lista(), "10,10,20") << "by colour";
    Menu("RimTutto");

    Menu("Inverti");
    EXPECT_EQ(Lista(), "10,10,20") << "inverted";
    Menu("RimTutto");

    Menu("Nome");
    Elenco("10,30,40");
    EXPECT_EQ(Lista(), "10,10") << "by name";
    Menu("RimTutto");

    Menu("SchSezione");
    Elenco("0-99");
    EXPECT_EQ(Lista(), "10,10,20") << "by section";
    Menu("RimTutto");

    Menu("Finestra");
    Clic(-8, 208);
    Clic(208, -8);
    EXPECT_EQ(Lista(), "10,10,20") << "by a window around everything";
    EXPECT_EQ(Detto(), "");
}

TEST_F(ElContRotti, IlLoroNomeNonSiScrive) {
    const auto disegno = [this](const LavoroProva &l) {
        Apri(l);
        Opzioni[kOpzTestiElCont] = 1.0;
        Opzioni[kOpzNomeElCont] = 1.0;
        DisegnaStruttura();
        std::vector<std::uint32_t> pixel;
        const Superficie &s = FormTelva.Disegno.Immagine();
        for (int y = 0; y < s.Altezza(); ++y)
            pixel.insert(pixel.end(), s.Riga(y), s.Riga(y) + s.Larghezza());
        return pixel;
    };
    const auto senza = disegno(Telaio());
    EXPECT_TRUE(disegno(Lavoro()) == senza);
}

} // namespace telva::prove
