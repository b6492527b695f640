#include "model/elementi.h"

namespace telva {

const Elementi &ElementiDi(int tipo) {
    static constexpr std::int16_t kNessuno = 0;
    // kind, parts, number, names, selected, active, colours
    static const Elementi kElementi[kTipiElemento] = {
        {kNodiTipo, kNodiTipo, NumNodi, NomeNodo, SelNodo, AttNodo, ColNodo},
        {kAsteTipo, kAsteTipo, NumAste, NomeAsta, SelAsta, AttAsta, ColAsta},
        {kGusciTipo, kGusciTipo, NumGusci, NomeGuscio, SelGuscio, AttGuscio, ColGuscio},
        {kElContTipo, kAsteTipo, NumElCont, NumeroElCont, SelElCont, AttAsta, ColAsta},
        {kParetiTipo, kParetiTipo, kNessuno, {}, {}, {}, {}},
    };
    if (tipo < 0 || tipo >= kTipiElemento) GuastoIndice("OptElem", tipo, kTipiElemento - 1);
    return kElementi[tipo];
}

} // namespace telva
