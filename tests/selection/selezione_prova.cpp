// The compact list, case by case.
#include "model/struttura.h"
#include "selection/selezione.h"
#include "sostegno/Banco.h"
#include <sstream>

namespace telva::prove {
using Elementi = std::vector<std::pair<int, int>>; // name and flag

TEST_F(Banco, ListaCompatta) {
    Elementi e;
    const auto lista = [&] {
        NumNodi = 0;
        for (const auto &[nome, sel] : e) {
            NomeNodo[NumNodi] = static_cast<std::int16_t>(nome);
            SelNodo[NumNodi++] = static_cast<std::int16_t>(sel);
        }
        return FormattaListaSel(OrdinaNumeriSel(kNodiTipo));
    };
    std::istringstream casi(R"(= 7- 9- = 7+ =7,7 8- 7+ 9- =7,7 1+ 2+ 3+ =1,1-3 9+ 4+ =4,4,9
        1+ 2+ 5+ =1,1-2,5 1- 2+ 3- 4+ 5+ =2,4-5 0+ 1+ =1 0+ 1+ 2+ 3+ =1,2-3 -3+ 2+ 3+ =2-3
        -2- 3+ =3 4+ 4+ =4,4,4 4- 4+ 5+ =4-5 4+ 4- 5+ =4,4-5 32767+ =32767,32767 300+ 256+ 40+ 255+ 512- =40,40,255-256,300)");
    for (std::string t; casi >> t;)
        if (t[0] != '=') {
            e.emplace_back(std::stoi(t), t.back() == '+');
        } else {
            EXPECT_EQ(lista(), t.substr(1));
            e.clear();
        }
}
} // namespace telva::prove
