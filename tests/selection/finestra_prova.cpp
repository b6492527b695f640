// Window selection: what lies wholly inside, the margin of one unit, what is hidden.
#include "sostegno/Recita.h"

namespace telva::prove {

TEST_F(Banco, FinestraPrendeSoloCioCheStaDentro) {
    LavoroProva lavoro = Telaio();
    lavoro.gusci.push_back({{4, 5, 7, -1}, 5});
    lavoro.gusci.push_back({{4, 5, 7, 0}, 6}); // corner 0 is a node like any other
    lavoro.elementi.push_back({30, "Senza aste", {}});
    Apri(lavoro);
    const std::string copione = R"(Aggiungi Finestra s99,99 s201,201 >5-6,8-9 RimTutto s201,201
        s99,99 >5-6,8-9 RimTutto s101,199 s199,101 >5-6,8-9 RimTutto s101.01,198.99 s198.99,101.01 >
        s-8,-8 s-1,-1 >1,1 s-8,8 s208,-8 >1,1-3 Rimuovi Finestra s99,8 s101,-8 >1,1,3 RimTutto x100
        Aggiungi Finestra s99,99 s201,201 >5,8 x200 k1 s99,99 s201,201 >4,6,10,12 RimTutto s10,201
        s190,-1 >9-10 RimTutto x100 s99,99 s201,201 >10 x200 k2 s99,99 s201,201 >4-5 s-1,-1 s201,201
        >1,1-6 RimTutto x100 s-1,-1 s201,201 >1,1,3 k3 x200 s-8,8 s208,-8 >10,10,30 s-8,208 s208,-8
        >10,10,20,30 RimTutto x100 s-8,208 s208,-8 >30 k4 s-8,208 s208,-8 >)";
    Recita(messaggi, copione);
}
} // namespace telva::prove
