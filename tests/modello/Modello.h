#pragma once
// The rules of view and selection told once more, small and slow: what random sequences are
// compared with. It shares nothing with the program but the message texts.
#include "sostegno/Banco.h"
#include "startup/basCommon_cond.h"
#include <algorithm>
#include <cmath>
#include <map>
#include <sstream>

namespace telva::prove {
using Quattro = std::array<double, 4>; // a window: larger and smaller x, larger and smaller y
using std::abs, std::max, std::min, std::string, std::to_string, std::vector;
struct Punto {
    double x, y;
};
struct Elemento {
    int nome, colore, tipo;
    std::map<int, int> schede; // cards by sub-function
    vector<int> punti, aste;   // places of points; a continuous element's bars, -1 outside
    bool sottile = false, triangolo = false; // shells: too thin to be drawn; picked as a triangle
    int sel = 0, att = 0;
};

// What the program has to show. `dubbio`: the last digits of a sum would decide.
struct Modello {
    const LavoroProva l;
    vector<Elemento> el[4];
    vector<Punto> pos; // points projected
    int fun = 0, sotto = 0, primo = 0, inCorso = 0, zoomA = 0, spostaA = 0, autom = 0, tasto = 0;
    int tipo = 0, risposta = 0, linea = 0, coord = 1;
    string sottoTxt, domanda, testo, lab, str[5], abil = "-------------", messaggi;
    string intervalli[6], ultimi[6], angoli[3] = {"0", "0", "0"}, valido[3];
    bool spunte[5] = {true, true, true, true, true}; // nodes, bars, shells, selected, others
    bool scalaNota = false, dubbio = false;
    Quattro zoom{}, vista{}, scala{}; // scala: left, top, width, -height
    double largo = 1, alto = 1, trappola = 8, x0 = 0, y0 = 0, x1 = 0, y1 = 0, xl = 0, yl = 0;

    explicit Modello(const LavoroProva &lavoro) : l(lavoro), pos(l.punti.size()) {
        const auto p = [this](int nodo) { return l.nodi[nodo].punto; };
        for (const auto &n : l.nodi)
            el[0].push_back({n.nome, n.colore, n.tipo, {{9, n.vincolo}}, {n.punto}, {}});
        for (const auto &[i, j, nome, colore, tratto, s, sv, o] : l.aste) {
            const int m = s > 0 && s <= std::ssize(l.sezioni) ? l.sezioni[s - 1] : 0;
            const std::map<int, int> schede{{2, m}, {5, s}, {7, o}, {8, sv}};
            el[1].push_back({nome, colore, tratto, schede, {p(i), p(j)}, {}});
        }
        for (const auto &[n, nome, colore, tratto, s] : l.gusci) {
            const bool c = s > 0 && s <= std::ssize(l.spessori);
            vector<int> punti{p(n[0]), p(n[1]), p(n[2])};
            if (n[3] >= 0) punti.push_back(p(n[3]));
            const std::map<int, int> schede{{2, c ? l.spessori[s - 1].materiale : 0}, {6, s}};
            const bool sottile = c && l.spessori[s - 1].valore < 1;
            el[2].push_back({nome, colore, tratto, schede, punti, {}, sottile, n[3] <= 0});
        }
        for (const auto &e : l.elementi) {
            el[3].push_back({e.numero, 1, 0, {}, {}, {}});
            for (int nome : e.aste) { // a name that no bar has is taken for a place
                const auto b = std::ranges::find(el[1], nome, &Elemento::nome) - el[1].begin();
                const auto posto = b < std::ssize(el[1]) ? b : nome;
                el[3].back().aste.push_back(posto < std::ssize(el[1]) ? int(posto) : -1);
            }
        }
    }
    void Dice(const string &t, const char *titolo, int icona) {
        messaggi += titolo + to_string(icona) + t;
    }

    // --- what is shown
    void Estremi(int asse) { // the full extent into an interval
        const auto valore = [&](const auto &n) { return l.punti[n.punto][asse]; };
        const auto [a, b] = std::ranges::minmax(l.nodi, {}, valore);
        intervalli[2 * asse] = to_string(int(std::floor(valore(a) + 0.5)));
        intervalli[2 * asse + 1] = to_string(int(std::floor(valore(b) + 0.5)));
    }
    bool Proietta() {
        bool errore = false;
        for (int k = 0; k < 3; ++k)
            if (angoli[k].empty() || angoli[k] == "x1") {
                Dice("Angolo di vista non valido: " + angoli[k], "ERRORE", 0);
                angoli[k] = valido[k], errore = true;
            }
        if (errore) return false;
        std::ranges::copy(angoli, valido);
        const auto rad = [&](int k) { return std::stod(valido[k]) * 3.14159265359 / 180; };
        const double a = rad(0), b = -rad(1), c = rad(2);
        for (std::size_t n = 0; n < pos.size(); ++n) {
            const auto &[x, y, z] = l.punti[n];
            pos[n] = {cos(b) * cos(c) * x - sin(b) * y + cos(b) * sin(c) * z,
                      (sin(a) * sin(b) * cos(c) - cos(a) * sin(c)) * x + sin(a) * cos(b) * y +
                          (sin(a) * sin(b) * sin(c) + cos(a) * cos(c)) * z};
        }
        return true;
    }
    bool Dentro(const Elemento &e) const { // the intervals are whole numbers: half a unit more
        for (int p : e.punti)
            for (int k = 0; k < 6; ++k)
                if ((l.punti[p][k / 2] - std::strtod(intervalli[k].c_str(), nullptr)) *
                        (k % 2 ? 1 : -1) >
                    0.5)
                    return false;
        return true;
    }
    bool Zoomata() const { return abs(zoom[0] - zoom[1]) >= 1e-4; }
    bool Piccola() const { return min(abs(zoom[0] - zoom[1]), abs(zoom[2] - zoom[3])) < 0.1; }
    void Inquadra() { // into vista: the zoom window, else what is drawn and active
        int seme = 0;
        const auto lontano = [](double v) { return abs(v) >= 5000; };
        while (el[0][0].colore >= 10 && std::ranges::any_of(l.punti[seme], lontano)) ++seme;
        vista = {pos[seme].x, pos[seme].x, pos[seme].y, pos[seme].y};
        for (const auto &tabella : el)
            for (const Elemento &e : tabella)
                for (int p : e.punti)
                    if (const auto [x, y] = pos[p];
                        e.nome > 0 && e.colore < 10 && e.att && !e.sottile)
                        vista = {max(vista[0], x), min(vista[1], x), max(vista[2], y),
                                 min(vista[3], y)};
        if (Zoomata()) vista = zoom;
    }
    void Adatta() {
        for (int k = 0; k < 6; ++k) {
            if (intervalli[k].empty() || intervalli[k] == "abc")
                Dice("Intervallo di coordinate non valido: " +
                         std::exchange(intervalli[k], ultimi[k]),
                     "ERRORE", 0);
            ultimi[k] = intervalli[k];
        }
        for (int t = 0; t < 3; ++t)
            for (Elemento &e : el[t]) e.att = Dentro(e) && spunte[t] && spunte[e.sel ? 3 : 4];
        Inquadra();
        auto [a, b, c, d] = vista;
        if (abs((a - b) * (c - d)) < 1e-4) return;
        a += 0.1 * abs(a - b), b -= 0.1 * abs(a - b);
        c += 0.1 * abs(c - d), d -= 0.1 * abs(c - d);
        const double r = min(largo / abs(a - b), alto / abs(c - d));
        scala = {(a + b - largo / r) / 2, (c + d + alto / r) / 2, largo / r, -alto / r};
        scalaNota = true;
    }
    void Ridis() { Proietta(), Adatta(), Aggiorna(); }
    void Ottimizza() {
        if (Proietta()) zoom = {}, Adatta();
    }

    // --- the selection as a whole
    void Aggiorna() {
        if (tipo == 4) return;
        auto ordinati = el[tipo];
        std::ranges::stable_sort(ordinati, {}, &Elemento::nome);
        string &s = str[tipo] = "";
        int inizio = 0, ultimo = 0;
        const auto nuovo = [&](int a) { // closes the run and begins another
            if (inizio > 0) s += (s.empty() ? "" : ",") + to_string(inizio);
            if (inizio > 0 && ultimo > inizio) s += "-" + to_string(ultimo);
            inizio = ultimo = a;
        };
        for (const Elemento &e : ordinati) {
            const int a = e.nome > 0 && !e.sel ? -e.nome : e.nome;
            const bool testa = &e == &ordinati[0];
            if (testa && a > 0) s = to_string(a);
            if (testa || (a > 0 && a != ultimo + 1))
                nuovo(a);
            else if (a > 0)
                (inizio < 1 ? inizio : ultimo) = a;
        }
        nuovo(0);
    }
    // Flags those of the chosen kind that may change and fit; `vale` is asked about the element, of
    // a continuous one about each of its bars.
    template <class F, class G>
    void Segna(F vale, G flag) {
        const auto asta = [&](int b) { return b >= 0 && el[1][b].att && vale(el[1][b]); };
        if (tipo == 3) {
            for (Elemento &e : el[3])
                if (std::ranges::all_of(e.aste, asta)) flag(e);
        } else if (tipo < 4) {
            for (Elemento &e : el[tipo])
                if (e.att && vale(e)) flag(e);
        }
    }
    void Attributo(int famiglia, int codice) { // 1 colour, 2 point, 3 line, 4 hatch
        static const int ogni[] = {0, 10, 8, 5, 9};
        static const char *const tipi[] = {"", "01234", "0", "13", "24"};
        AzzeraInput();
        const int vero = tipo, t = string(tipi[famiglia]).find(char('0' + tipo)) != string::npos;
        tipo = t && tipo == 4 ? 2 : tipo; // walls are drawn from the shells
        if (t)
            Segna(
                [&](const Elemento &x) {
                    return codice == ogni[famiglia] ||
                           codice == (famiglia == 1 ? x.colore : x.tipo);
                },
                [&](Elemento &e) { e.sel = fun == 1; });
        tipo = vero;
        Aggiorna();
        sotto = 4;
    }
    void AzzeraInput() { sotto = risposta = 0, sottoTxt = domanda = testo = ""; }
    void Abilita() {
        static const char *const tabella[] = {"xxx-------xxx", "xx-x-xx-xx-xx", "xx--xx-x---xx",
                                              "xx-x-xx-x--xx", "xxxxxxxxxxxxx"};
        if (fun) abil = tabella[tipo];
    }
    void Annulla() { primo = inCorso = zoomA = spostaA = linea = 0; }
    void Interrompi() {
        fun = autom = 0, abil = "-------------";
        Annulla(), AzzeraInput();
    }

    // --- typed lists
    void Scheda(int codice, const string &lista) {
        vector<int> numeri;
        string pezzo;
        int da = 0, aperto = 0;
        for (const char c : lista + ",") {
            if (c != ' ' && c != ',' && c != '-') pezzo += c;
            if (c != ',' && c != '-') continue;
            const double v = std::floor(std::strtod(pezzo.c_str(), nullptr));
            if (v > 32767)
                return Dice(" Numero fuori dai limiti ammessi (da -32768 a 32767) ", "ERRORE", 1);
            for (int n = aperto ? da : int(v); c == ',' && n <= v; ++n) numeri.push_back(n);
            if (std::ssize(numeri) > (codice == 3 ? 20000 : 100))
                return Dice(Messaggi[18], "ERRORE", 1);
            aperto = c == '-', da = int(v), pezzo = "";
        }
        const bool suo = tipo == 3 && codice == 3; // a continuous element's own number
        for (const int n : numeri)
            Segna(
                [&](const Elemento &x) {
                    return suo || (codice == 3 ? x.nome : x.schede.at(codice)) == n;
                },
                [&](Elemento &e) { e.sel = suo && e.nome != n ? e.sel : fun == 1; });
        Aggiorna();
    }
    void Invio() {
        static const std::map<int, std::array<int, 5>> messaggio{
            // -1 runs, -2 nothing
            {2, {3, -1, -1, -1, -1}}, {3, {-1, -1, -1, -1, -1}}, {5, {7, -1, 11, -1, -2}},
            {6, {8, 16, -1, 20, -2}}, {7, {10, -1, 13, -1, -2}}, {8, {9, -1, 12, 21, -2}},
            {9, {-1, 15, 14, 22, -2}}};
        const int m = messaggio.count(sotto) ? messaggio.at(sotto)[tipo] : -2;
        if (m >= 0) Dice(Messaggi[m], "INFORMAZIONE", 2);
        if (m == -1 && !testo.empty()) Scheda(sotto, testo);
    }

    // --- the pointer
    bool Meno(double a, double b) { // a < b, and not by a hair
        dubbio = dubbio || abs(a - b) < 1e-3;
        return a < b;
    }
    double Trappola() const { return trappola * scala[2] / largo; }
    // How far the element is under the aperture; -1 outside.
    double Distanza(const Elemento &e, double x, double y) {
        if (e.colore < 1 || e.nome < 1 || !e.att || trappola == 0) return -1;
        const double t = Trappola();
        const int lati = e.punti.size() < 3 ? 0 : e.triangolo ? 3 : 4;
        int passati = 0;
        for (int k = 0; k < lati; ++k) { // shell: sides crossed on the way to the right
            const Punto a = pos[e.punti[k]], b = pos[e.punti[(k + 1) % lati]];
            const double dx = b.x - a.x, dy = b.y - a.y, q = max(dx * dx + dy * dy, 1e-9);
            const double s = std::clamp(((x - a.x) * dx + (y - a.y) * dy) / q, 0., 1.);
            Meno(0, std::hypot(x - a.x - s * dx, y - a.y - s * dy)); // not on a side
            passati += (a.y > y) != (b.y > y) && x < a.x + (y - a.y) * dx / dy;
        }
        if (lati) return passati % 2 - 1;
        const Punto i = pos[e.punti[0]], j = pos[e.punti.back()];
        const double dx = j.x - i.x, dy = j.y - i.y, lungo = dx * dx + dy * dy;
        double d = std::hypot(x - i.x, y - i.y);
        if (e.punti.size() == 2) {
            if (!Meno(1e-4, lungo)) return -1;
            d = abs(dx * (y - i.y) - dy * (x - i.x)) / std::sqrt(lungo);
            for (const Punto p : {i, j})
                if (!Meno(abs(x - p.x) - abs(dx), t) || !Meno(abs(y - p.y) - abs(dy), t)) return -1;
        }
        return Meno(d, t) ? d : -1;
    }
    int Scelto(double x, double y) {
        vector<std::pair<const Elemento *, double>> c;
        for (std::size_t n = 0; tipo < 4 && n < el[tipo].size(); ++n) {
            const Elemento &e = el[tipo][n];
            for (int b : tipo == 3 ? e.aste : vector{0})
                if (const double d = b < 0 ? -1 : Distanza(tipo == 3 ? el[1][b] : e, x, y);
                    d >= 0 && c.size() < (tipo == 2 ? 1 : 50))
                    c.push_back({&e, d});
        }
        if (c.empty() || tipo == 3) return c.empty() ? 0 : c.back().first->nome;
        for (const auto &[e, d] : c)
            for (const auto &[g, dg] : c) // bars whose equal distances are sums of other numbers
                dubbio = dubbio || (abs(d - dg) < 1e-6 && e->punti != g->punti && tipo == 1) ||
                         abs(d - std::floor(d) - 0.5) < 1e-6;
        for (std::size_t giri = c.size() * c.size(), k = 1; giri > 0; --giri, k = 1)
            for (; k < c.size(); ++k)
                if (c[k - 1].second > c[k].second) {
                    std::swap(c[k - 1], c[k]);
                    c[k].second = min(std::nearbyint(c[k].second), 32767.0);
                }
        for (const auto &[e, d] : c)
            if (e->sel != (fun == 1)) return e->nome;
        return c[0].first->nome;
    }
    void SelezionaRettangolo() {
        const double w = abs(x1 - x0), h = abs(y1 - y0);
        const auto presi = [&](double margine) {
            vector<Elemento *> v;
            Segna(
                [&](const Elemento &e) {
                    return std::ranges::all_of(e.punti, [&](int n) {
                        const auto [x, y] = pos[n];
                        return max(abs(x - x0), abs(x - x1)) - w <= margine &&
                               max(abs(y - y0), abs(y - y1)) - h <= margine;
                    });
                },
                [&](Elemento &e) { v.push_back(&e); });
            return v;
        };
        const bool esatto = valido[0] + valido[1] + valido[2] == "000"; // seen from the front
        dubbio = dubbio || (!esatto && presi(0.999) != presi(1.001));
        for (Elemento *e : presi(1)) e->sel = fun == 1;
        Aggiorna();
        Riprendi();
    }
    void Riprendi() { // after an automatic window
        if (autom) autom = 0, sotto = 4, sottoTxt = "Selezione diretta";
    }
    void Didascalia() { // after zoom and pan
        static const char *const testi[] = {"", "Seleziona per finestra", "Seleziona per materiale",
                                            "Seleziona per nome elemento", "Selezione diretta"};
        if (sotto == 0) AzzeraInput();
        if (sotto < 5) sottoTxt = testi[sotto];
    }
    bool Visibile(double x, double y) const {
        return x >= scala[0] && x <= scala[0] + scala[2] && y <= scala[1] &&
               y >= scala[1] + scala[3];
    }
    void Muovi(double x, double y) {
        if (primo && Visibile(x, y)) x1 = x, y1 = y;
        if (coord) lab = "";
        for (const Elemento &e : el[0]) {
            if (!coord || !lab.empty() || Distanza(e, x, y) < 0) continue;
            const auto &p = l.punti[e.punti[0]];
            for (const double &v : p)
                lab += to_string(int(std::floor(v))) + (&v == &p[2] ? " " : ", ");
            lab += "[N" + to_string(e.nome) + "]";
        }
    }
    void Trasla(Quattro da, double dx, double dy) {
        zoom = {da[0] - dx, da[1] - dx, da[2] - dy, da[3] - dy};
        Ridis();
    }
    void Premi(double x, double y) {
        if (spostaA && !inCorso) {
            inCorso = linea = 1, xl = x, yl = y;
        } else if (spostaA && max(abs(x - xl), abs(y - yl)) > 1e-4) {
            spostaA = inCorso = linea = 0;
            Inquadra();
            Trasla(vista, x - xl, y - yl);
            Didascalia();
        } else if (!primo && (sotto == 1 || zoomA)) {
            primo = 1, x0 = x1 = x, y0 = y1 = y;
        } else if (!primo && sotto == 4 && fun) {
            const int nome = Scelto(x, y);
            if (nome > 0) return Scheda(3, to_string(nome));
            autom = sotto = 1;
            Didascalia();
            Premi(x, y);
        } else if (primo) {
            primo = 0;
            if (x0 == x1 || y0 == y1) return;
            if (!zoomA) return SelezionaRettangolo();
            zoom = {max(x0, x1), min(x0, x1), max(y0, y1), min(y0, y1)}, zoomA = 0;
            Ridis();
            Didascalia();
        }
    }
    void Trascina(std::istringstream &s) { // middle button, from the first pixel over the others
        double px = 0, py = 0, qx = 0, qy = 0;
        char virgola = 0;
        s >> px >> virgola >> py;
        tasto = 4, linea = inCorso;
        xl = scala[0] + px * scala[2] / largo, yl = scala[1] + py * scala[3] / alto;
        const Quattro vecchia = vista;
        Inquadra();
        const Quattro da = vista; // dubious: no window, one not yet shown, or uneven pixels
        dubbio = da[0] - da[1] < 1e-4 || da != vecchia ||
                 abs(scala[2] / largo + scala[3] / alto) > 1e-9 * scala[2];
        while (s >> qx >> virgola >> qy) {
            const double dx = (qx - px) * scala[2] / largo, dy = (qy - py) * scala[3] / alto;
            const bool altrove = max(abs(da[0] - dx - zoom[0]), abs(da[2] - dy - zoom[2])) > 1e-9;
            if (altrove && (dx != 0 || dy != 0 || Zoomata())) Trasla(da, dx, dy);
            Muovi(scala[0] + qx * scala[2] / largo, scala[1] + qy * scala[3] / alto);
        }
    }

    // --- commands; false when nobody can give them now
    bool Selezioni(int n, int codice) { // items of the menu Selezioni, by their place in it
        static const char *const titoli[] = {"materiale", "nome elemento", "",         "sezione",
                                             "spessore",  "orientamento",  "svincolo", "vincolo"};
        if (abil[n] != 'x') return false;
        Annulla();
        AzzeraInput();
        autom = 0;
        if (n == 0) sotto = 1, Didascalia();
        if (n == 12 || (n > 0 && n < 5)) Attributo(n == 12 ? 1 : n, codice);
        if (n < 5 || n == 12) return true;
        sotto = codice, risposta = 1;
        const string t = titoli[codice - 2];
        sottoTxt = "Seleziona per " + t;
        domanda = "Inserire i " +
                  (n == 11 ? "nomi degli elementi" : "numeri delle schede di " + t) +
                  " e premere INVIO";
        return true;
    }
    bool Voce(const string &v) {
        std::istringstream s(R"(Finestra 0 1 Bianco 1 1 Blu 1 2 Rosso 1 3 Verde 1 4 Giallo 1 5
            VerdeScuro 1 6 Magenta 1 7 Azzurro 1 8 Arancione 1 9 TuttiCol 1 10 TipoPt1 2 0 TipoPt2 2
            1 TipoPt3 2 2 TipoPt4 2 3 TuttiPt 2 8 TipoLn1 3 0 TipoLn2 3 1 TipoLn3 3 2 TipoLn4 3 3
            TipoLn5 3 4 TuttiLn 3 5 TipoTr1 4 1 TipoTr2 4 2 TipoTr3 4 3 TipoTr4 4 4 TipoTr5 4 5
            TipoTr6 4 6 TipoTr7 4 7 TipoTr8 4 8 TuttiTr 4 9 Materiale 5 2 SchSezione 6 5 SchSpessore
            7 6 SchOrientamento 8 7 SchSvincolo 9 8 SchVincolo 10 9 Nome 11 3 Tutto 12 10)");
        int n = 0, codice = 0;
        for (string nome; s >> nome >> n >> codice;)
            if (nome == v) return Selezioni(n, codice);
        if (v == "Aggiungi" || v == "Rimuovi") {
            Interrompi();
            fun = v == "Aggiungi" ? 1 : 2, sotto = 4;
            Abilita(), Didascalia();
        }
        if (v == "RimTutto") {
            const int f = fun, sf = sotto;
            fun = 2;
            Attributo(1, 10);
            fun = f, sotto = sf, sottoTxt = "Selezione diretta";
        }
        if (v == "Inverti")
            Segna([](const Elemento &) { return true; }, [](Elemento &e) { e.sel ^= 1; }),
                Aggiorna();
        if (v == "Interrompi" && fun) Interrompi();
        if (v == "ZoomIn" || v == "Sposta" || v == "Rappresentazione")
            if (primo && !zoomA) primo = 0, Riprendi();
        if (v == "ZoomIn") Annulla(), zoomA = 1, sottoTxt = "Zoom";
        if (v == "Sposta") Annulla(), spostaA = 1, sottoTxt = v;
        if (v == "Ottimizza") Ottimizza();
        if (v == "VisCoord") coord = !coord, lab = "";
        if (v == "Ridis" || v == "VisAssi") Ridis();
        if (v == "BarraLat" || v == "BarraIcone") Adatta();
        return v != "Trappola" && v != "Salva" && v != "Esci";
    }
};
} // namespace telva::prove
