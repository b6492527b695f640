#include "view/tipi_linea.h"

namespace telva {
namespace {

Trattini Normale(int tipo) {
    switch (tipo) {
    case 1: return {0x1FF, 14};
    case 2: return {0x3, 6};
    case 3: return {0xC1FF, 20};   // 9 on, 5 off, 2 on, 4 off
    case 4: return {0x30C1FF, 26}; // the same and once more 2 on, 4 off
    default: return {};
    }
}

} // namespace

Trattini TrattiniLinea(int tipo, double quanto) {
    const Trattini normale = Normale(tipo);
    return normale.periodo > 1 ? normale.Ingrandito(quanto) : normale;
}

} // namespace telva
