// The compact list, case by case.
#include "model/struttura.h"
#include "selection/selezione.h"
#include "sostegno/Banco.h"

namespace telva::prove {

TEST_F(Banco, ListaCompatta) {
    struct Elemento {
        int nome;
        bool selezionato;
    };
    struct Caso {
        std::vector<Elemento> elementi;
        const char *lista;
    };
    const bool si = true, no = false;
    const Caso casi[] = {
        {.elementi = {}, .lista = ""},
        // The first number of the list stands there twice, when the first element is selected.
        {.elementi = {{7, si}}, .lista = "7,7"},
        {.elementi = {{8, no}, {7, si}, {9, no}}, .lista = "7,7"},
        {.elementi = {{1, si}, {2, si}, {5, si}}, .lista = "1,1-2,5"},
        {.elementi = {{1, no}, {2, si}, {3, no}, {4, si}, {5, si}}, .lista = "2,4-5"},
        // What has no positive name is never selected, but may open a run.
        {.elementi = {{0, si}, {1, si}, {2, si}, {3, si}}, .lista = "1,2-3"},
        {.elementi = {{-3, si}, {2, si}, {3, si}}, .lista = "2-3"},
        {.elementi = {{-2, no}, {3, si}}, .lista = "3"},
        // The same name more than once, in the order of the file.
        {.elementi = {{4, si}, {4, si}}, .lista = "4,4,4"},
        {.elementi = {{4, no}, {4, si}, {5, si}}, .lista = "4-5"},
        {.elementi = {{4, si}, {4, no}, {5, si}}, .lista = "4,4-5"},
        {.elementi = {{32767, si}}, .lista = "32767,32767"},
        {.elementi = {{300, si}, {256, si}, {40, si}, {255, si}, {512, no}},
         .lista = "40,40,255-256,300"}};
    for (const auto &[elementi, lista] : casi) {
        NumNodi = 0;
        for (const auto &[nome, selezionato] : elementi) {
            NomeNodo[NumNodi] = static_cast<std::int16_t>(nome);
            SelNodo[NumNodi++] = selezionato;
        }
        EXPECT_EQ(FormattaListaSel(OrdinaNumeriSel(kNodiTipo)), lista);
    }
}

} // namespace telva::prove
