// Selection by display attributes with walls chosen: they mark shells, and the shells' list tells
// it.
#include "model/elementi.h"
#include "sostegno/Utente.h"

namespace telva::prove {

struct CasoPareti {
    const char *comando;
    const char *gusci; // the shells' list after it
};

const CasoPareti kCasiPareti[] = {
    {.comando = "Tutto", .gusci = "1,1-4"},    {.comando = "Rosso", .gusci = "1,1,3"},
    {.comando = "TuttiCol", .gusci = "1,1-4"}, {.comando = "TipoTr2", .gusci = "2"},
    {.comando = "TuttiTr", .gusci = "1,1-4"},  {.comando = "TuttiPt", .gusci = ""},
};

TEST_F(Utente, ConParetiLElencoDeiGusciSegueCioCheSiMarca) {
    Apri(Telaio());
    for (const CasoPareti &caso : kCasiPareti) {
        Tipo(kParetiTipo);
        Menu("Aggiungi");
        Menu(caso.comando);
        EXPECT_EQ(Lista(), "") << "walls have no list of their own: " << caso.comando;
        Tipo(kGusciTipo);
        EXPECT_EQ(Lista(), caso.gusci) << caso.comando;
        Tipo(kParetiTipo);
        Menu("RimTutto");
        Tipo(kGusciTipo);
        EXPECT_EQ(Lista(), "") << caso.comando << ", then all removed";
    }
}

TEST_F(Utente, GusciToltiConParetiNonTornanoAlChiamante) {
    Apri(Telaio());
    Tipo(kGusciTipo);
    Menu("Aggiungi");
    Menu("Tutto");
    Tipo(kParetiTipo);
    Menu("RimTutto");
    Tipo(kGusciTipo);
    Esegui([&] { Menu("Salva"); });
    EXPECT_EQ(Uscita(), " \r\n");
}

} // namespace telva::prove
