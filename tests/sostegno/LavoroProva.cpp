#include "sostegno/LavoroProva.h"

#include <sstream>

namespace telva::prove {
namespace {

template <class T>
std::string Elenco(const std::vector<T> &voci, const auto &scrivi) {
    std::ostringstream s;
    s << "{";
    for (const T &v : voci) {
        s << (&v == voci.data() ? "" : ", ");
        scrivi(s, v);
    }
    s << "}";
    return s.str();
}

} // namespace

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
            l.nodi.push_back({n, n + 1, n % 3 + 1, n % 4, riga});
        }
    int nome = 0;
    for (int riga = 0; riga < 3; ++riga)
        for (int colonna = 0; colonna < 2; ++colonna) {
            const int i = riga * 3 + colonna;
            l.aste.push_back({i, i + 1, ++nome, riga + 1, riga, riga % 2 + 1, colonna, riga + 1});
        }
    for (int colonna = 0; colonna < 3; ++colonna)
        for (int riga = 0; riga < 2; ++riga) {
            const int i = riga * 3 + colonna;
            l.aste.push_back({i, i + 3, ++nome, 5, 4, 2, 0, 7});
        }
    nome = 0;
    for (int riga = 0; riga < 2; ++riga)
        for (int colonna = 0; colonna < 2; ++colonna) {
            const int i = riga * 3 + colonna;
            l.gusci.push_back({{i, i + 1, i + 4, i + 3}, ++nome, 3 + colonna, nome, riga + 1});
        }
    l.elementi = {{10, "Trave bassa", {1, 2}}, {20, "Trave media", {3, 4}}};
    l.spessori = {{3, 20}, {4, 0.5}};
    l.sezioni = {1, 2};
    return l;
}

std::string Dichiarazione(const LavoroProva &l) {
    std::ostringstream s;
    s.precision(17);
    s << "LavoroProva l;\n"
      << "l.punti = "
      << Elenco(l.punti,
                [](auto &o, const auto &p) {
                    o.precision(17);
                    o << "{" << p[0] << ", " << p[1] << ", " << p[2] << "}";
                })
      << ";\n"
      << "l.nodi = "
      << Elenco(l.nodi,
                [](auto &o, const LavoroProva::Nodo &n) {
                    o << "\n    {.punto = " << n.punto << ", .nome = " << n.nome
                      << ", .colore = " << n.colore << ", .tipo = " << n.tipo
                      << ", .vincolo = " << n.vincolo << "}";
                })
      << ";\n"
      << "l.aste = "
      << Elenco(l.aste,
                [](auto &o, const LavoroProva::Asta &a) {
                    o << "\n    {.i = " << a.i << ", .j = " << a.j << ", .nome = " << a.nome
                      << ", .colore = " << a.colore << ", .tipo = " << a.tipo
                      << ", .sezione = " << a.sezione << ", .svincolo = " << a.svincolo
                      << ", .orientamento = " << a.orientamento << "}";
                })
      << ";\n"
      << "l.gusci = "
      << Elenco(l.gusci,
                [](auto &o, const LavoroProva::Guscio &g) {
                    o << "\n    {.nodi = {" << g.nodi[0] << ", " << g.nodi[1] << ", " << g.nodi[2]
                      << ", " << g.nodi[3] << "}, .nome = " << g.nome << ", .colore = " << g.colore
                      << ", .tratto = " << g.tratto << ", .spessore = " << g.spessore << "}";
                })
      << ";\n"
      << "l.elementi = "
      << Elenco(l.elementi,
                [](auto &o, const LavoroProva::ElCont &e) {
                    o << "\n    {.numero = " << e.numero << ", .nome = \"" << e.nome
                      << "\", .aste = " << Elenco(e.aste, [](auto &p, int asta) { p << asta; })
                      << "}";
                })
      << ";\n"
      << "l.spessori = "
      << Elenco(l.spessori,
                [](auto &o, const LavoroProva::Spessore &c) {
                    o << "{.materiale = " << c.materiale << ", .valore = " << c.valore << "}";
                })
      << ";\n"
      << "l.sezioni = " << Elenco(l.sezioni, [](auto &o, int materiale) { o << materiale; })
      << ";\n";
    return s.str();
}

} // namespace telva::prove
