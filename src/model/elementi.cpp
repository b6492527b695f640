#include "model/elementi.h"

namespace telva {

const Elementi &ElementiDi(int tipo) {
    static constexpr std::int16_t kNessuno = 0;
    // kind, parts, number, names, selected, active, colours
    static const Elementi kElementi[kTipiElemento] = {
        {kNodiTipo, kNodiTipo, NumNodi, NomeNodo.Dati(), SelNodo.Dati(), AttNodo.Dati(),
         ColNodo.Dati()},
        {kAsteTipo, kAsteTipo, NumAste, NomeAsta.Dati(), SelAsta.Dati(), AttAsta.Dati(),
         ColAsta.Dati()},
        {kGusciTipo, kGusciTipo, NumGusci, NomeGuscio.Dati(), SelGuscio.Dati(), AttGuscio.Dati(),
         ColGuscio.Dati()},
        {kElContTipo, kAsteTipo, NumElCont, NumeroElCont.Dati(), SelElCont.Dati(), AttAsta.Dati(),
         ColAsta.Dati()},
        {kParetiTipo, kParetiTipo, kNessuno, nullptr, nullptr, nullptr, nullptr},
    };
    if (tipo < 0 || tipo >= kTipiElemento) GuastoIndice("OptElem", tipo, kTipiElemento - 1);
    return kElementi[tipo];
}

} // namespace telva
