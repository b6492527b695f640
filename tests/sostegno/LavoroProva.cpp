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

LavoroProva Telaio() {
    LavoroProva l;
    for (int riga = 0; riga < 3; ++riga)
        for (int colonna = 0; colonna < 3; ++colonna) {
            const int n = riga * 3 + colonna;
            l.punti.push_back({colonna * 100.0, 0, riga * 100.0});
            l.nodi.push_back(
                {.punto = n, .nome = n + 1, .colore = n % 3 + 1, .tipo = n % 4, .vincolo = riga});
        }
    int nome = 0;
    for (int riga = 0; riga < 3; ++riga)
        for (int colonna = 0; colonna < 2; ++colonna) {
            const int i = riga * 3 + colonna;
            l.aste.push_back({.i = i,
                              .j = i + 1,
                              .nome = ++nome,
                              .colore = riga + 1,
                              .tipo = riga,
                              .sezione = riga % 2 + 1,
                              .svincolo = colonna,
                              .orientamento = riga + 1});
        }
    for (int colonna = 0; colonna < 3; ++colonna)
        for (int riga = 0; riga < 2; ++riga) {
            const int i = riga * 3 + colonna;
            l.aste.push_back({.i = i,
                              .j = i + 3,
                              .nome = ++nome,
                              .colore = 5,
                              .tipo = 4,
                              .sezione = 2,
                              .orientamento = 7});
        }
    nome = 0;
    for (int riga = 0; riga < 2; ++riga)
        for (int colonna = 0; colonna < 2; ++colonna) {
            const int i = riga * 3 + colonna;
            ++nome;
            l.gusci.push_back({.nodi = {i, i + 1, i + 4, i + 3},
                               .nome = nome,
                               .colore = 3 + colonna,
                               .tratto = nome,
                               .spessore = riga + 1});
        }
    l.elementi = {{10, "Trave bassa", {1, 2}}, {20, "Trave media", {3, 4}}};
    l.spessori = {{.materiale = 3, .valore = 20}, {.materiale = 4, .valore = 0.5}};
    l.sezioni = {1, 2}; // materials
    return l;
}

} // namespace telva::prove
