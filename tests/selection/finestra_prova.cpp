// Window selection: what lies wholly inside, the margin of one unit, what is hidden.
#include "sostegno/Banco.h"

#include "selection/finestra_sel.h"
#include "ui/controlli/FormTelva.h"

namespace telva::prove {
namespace {

struct FinestraProva : Banco {};

TEST_F(FinestraProva, PrendeSoloCioCheStaDentro) {
    LavoroProva lavoro = Telaio();
    lavoro.gusci.push_back({{4, 5, 7, -1}, 5});
    lavoro.gusci.push_back({{4, 5, 7, 0}, 6}); // corner 0 is a node like any other
    lavoro.elementi.push_back({30, "Senza aste", {}});
    static const struct {
        int tipo;
        double left, top, width, height;
        const char *tutti, *nascosteX; // all shown; with the bars beyond x = 100 hidden
    } kCasi[] = {
        {0, 99, 201, 102, 102, "5-6,8-9", "5,8"},
        {0, 201, 99, -102, -102, "5-6,8-9", "5,8"}, // drawn from the lower right
        {0, 101, 199, 98, 98, "5-6,8-9", "5,8"},    // one unit outside still counts
        {0, 101.01, 198.99, 97.98, 97.98, "", ""},
        {0, -1, 1, 0, 0, "", ""},
        {1, 99, 201, 102, 102, "4,6,10,12", "10"},
        {1, 10, 201, 180, 202, "9-10", "9-10"}, // those that cross it stay
        {2, 99, 201, 102, 102, "4-5", ""},
        {2, -1, 201, 202, 202, "1,1-6", "1,1,3"},
        {3, 0, 0, 200, 0, "10,10,30", "30"},
        {3, 0, 200, 200, 200, "10,10,20,30", "30"},
        {3, 300, 300, 1, 1, "30", "30"},
        {4, 0, 200, 200, 200, "", ""}};
    Apri(lavoro);
    for (const bool nascoste : {false, true})
        for (const auto &c : kCasi) {
            SCOPED_TRACE(testing::Message() << c.tipo << " " << c.left << " " << nascoste);
            FormTelva.IntX[1].Text = nascoste ? "100" : "200";
            FormTelva.IntX[1].KeyDown(13);
            FormTelva.OptElem[c.tipo].Seleziona();
            FormTelva.Aggiungi.Click();
            SelezionaFinestra(c.left, c.top, c.width, c.height);
            EXPECT_EQ(Lista(), nascoste ? c.nascosteX : c.tutti);
            FormTelva.Rimuovi.Click();
            SelezionaFinestra(c.left, c.top, c.width, c.height);
            EXPECT_EQ(Lista(), "");
        }
}

} // namespace
} // namespace telva::prove
