#include "sostegno/LavoroProva.h"

#include <sstream>

namespace telva::prove {
std::string LavoroProva::Struttura() const {
    std::ostringstream s;
    s.precision(15); // far from the origin every digit counts
    s << "Struttura di prova, Release 4.0\r\n" << punti.size() << "\r\n";
    for (const auto &p : punti) s << p[0] << "," << p[1] << "," << p[2] << "\r\n";
    s << nodi.size() << "\r\n";
    for (const Nodo &n : nodi)
        s << n.punto << " " << n.tipo << " " << n.colore << "\r\n"
          << n.nome << " " << n.vincolo << "\r\n";
    s << aste.size() << "\r\n";
    for (const Asta &a : aste)
        s << a.i << " " << a.j << " " << a.tipo << " " << a.colore << "\r\n"
          << a.nome << " " << a.sezione << " " << a.svincolo << " " << a.orientamento << " 0 0\r\n";
    s << gusci.size() << "\r\n";
    for (const Guscio &g : gusci)
        s << g.nodi[0] << " " << g.nodi[1] << " " << g.nodi[2] << " " << g.nodi[3] << "\r\n"
          << g.tratto << " " << g.nome << " " << g.spessore << " 1.5 " << g.colore << "\r\n";
    s << "0\r\n0\r\n0\r\n0\r\n";
    return s.str();
}

namespace {

void Nodi(LavoroProva &l) {
    for (int n = 0; n < 9; ++n) {
        const int riga = n / 3, colonna = n % 3;
        l.punti.push_back({colonna * 100.0, 0, riga * 100.0});
        l.nodi.push_back(
            {.punto = n, .nome = n + 1, .colore = colonna + 1, .tipo = n % 4, .vincolo = riga});
    }
}

void Aste(LavoroProva &l) {
    for (int n = 0; n < 6; ++n) { // along x, row by row
        const int riga = n / 2, colonna = n % 2, i = riga * 3 + colonna;
        l.aste.push_back({.i = i, .j = i + 1, .nome = n + 1, .colore = riga + 1, .tipo = riga});
        LavoroProva::Asta &a = l.aste.back();
        a.sezione = riga % 2 + 1, a.svincolo = colonna, a.orientamento = riga + 1;
    }
    for (int n = 0; n < 6; ++n) { // along z, column by column
        const int i = n % 2 * 3 + n / 2;
        l.aste.push_back({.i = i, .j = i + 3, .nome = n + 7, .colore = 5, .tipo = 4});
        l.aste.back().sezione = 2, l.aste.back().orientamento = 7;
    }
}

void Gusci(LavoroProva &l) {
    for (int n = 0; n < 4; ++n) {
        const int riga = n / 2, colonna = n % 2, i = riga * 3 + colonna;
        l.gusci.push_back({.nodi = {i, i + 1, i + 4, i + 3},
                           .nome = n + 1,
                           .colore = 3 + colonna,
                           .tratto = n + 1,
                           .spessore = riga + 1});
    }
}

} // namespace

LavoroProva Telaio() {
    LavoroProva l;
    Nodi(l);
    Aste(l);
    Gusci(l);
    l.elementi = {{.numero = 10, .nome = "Trave bassa", .aste = {1, 2}},
                  {.numero = 20, .nome = "Trave media", .aste = {3, 4}}};
    l.spessori = {{.materiale = 3, .valore = 20}, {.materiale = 4, .valore = 0.5}};
    l.sezioni = {1, 2};
    return l;
}

} // namespace telva::prove
