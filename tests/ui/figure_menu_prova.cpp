// The pictures beside the items of the menus.
#include "ui/figure_menu.h"

#include "sostegno/Banco.h"
#include "ui/comandi.h"
#include "ui/controlli/FormTelva.h"
#include "view/colori.h"

#include <cmath>
#include <set>

namespace telva::prove {

using Genere = FiguraVoce::Genere;

struct FigureMenu : Banco {};

TEST_F(FigureMenu, OgniFiguraEDiversaDellaMisuraChiestaEOpaca) {
    CostruisciComandi();
    for (const double quanto : {1.0, 1.5, 2.0}) {
        const int altezza = static_cast<int>(std::lround(13 * quanto));
        std::set<std::vector<std::uint32_t>> diverse;
        for (const Comando &c : TabellaComandi()) {
            if (c.figura.genere == Genere::Nessuna) continue;
            SCOPED_TRACE(c.voce->NomeControllo() + " at " + std::to_string(quanto));
            const Figura f = FormTelva.FiguraMenu(c.figura, altezza, quanto);
            EXPECT_EQ(f.altezza, altezza);
            EXPECT_EQ(f.larghezza, c.figura.genere == Genere::Colore ? altezza : 3 * altezza);
            ASSERT_EQ(f.pixel.size(), static_cast<std::size_t>(f.altezza * f.larghezza));
            for (const std::uint32_t p : f.pixel) ASSERT_EQ(p >> 24, 0xFFu) << "opacity";
            EXPECT_EQ(f.pixel[0], 0xFF808080u) << "a frame for light menus and dark ones";
            EXPECT_TRUE(diverse.insert(f.pixel).second) << "looks like another one";
        }
        EXPECT_EQ(diverse.size(), kNumeroColori + 6u + 9u);
    }
}

} // namespace telva::prove
