// Random sequences of what a user can do, on random jobs, against the model of the rules. By hand:
// TELVA_SEME=7 TELVA_SEMI=100 TELVA_PASSI=5000 prove_telva --gtest_filter=*Sequenze*
#include "model/struttura.h"
#include "modello/Modello.h"
#include "selection/selezione.h"
#include "startup/avvio.h"
#include "ui/controlli/FormOpt.h"
#include "ui/controlli/FormOptInt.h"
#include "ui/controlli/FormTelva.h"
#include "ui/gesto.h"
#include "view/inquadra.h"
#include <random>

namespace telva::prove {
using Passi = vector<string>;
struct SequenzeProva : Banco {
    std::mt19937 caso;
    ModuloTelva &f = FormTelva;
    RiquadroDisegno &d = FormTelva.Disegno;
    CasellaTesto *const intervalli[6] = {&f.IntX[0], &f.IntX[1], &f.IntY[0],
                                         &f.IntY[1], &f.IntZ[0], &f.IntZ[1]};
    CasellaSpunta *const spunte[5] = {&f.NodiAtt, &f.AsteAtt, &f.GusciAtt, &f.ElSelez,
                                      &f.ElNonSelez};
    Pulsante *const tutto[3] = {&f.TuttoX, &f.TuttoY, &f.TuttoZ};

    int Tira(std::size_t n) { return static_cast<int>(caso() % n); }
    string Cifra(std::size_t n) { return to_string(Tira(n)); }
    string Uno(const string &scelte) { // one of them, apart by "|"
        vector<string> v(1);
        for (const char c : scelte) c == '|' ? v.push_back("") : v.back().push_back(c);
        return v[Tira(v.size())];
    }
    LavoroProva Lavoro() {
        LavoroProva l;
        const int griglia = Tira(2), passo = std::array{1, 10, 50}[Tira(3)], nomi = 4 + Tira(30);
        const auto nome = [&] { return Tira(8) ? 1 + Tira(nomi) : std::stoi(Uno("0|-3|20000|1")); };
        const auto colore = [&] { return Tira(6) ? 1 + Tira(3) : Tira(14); };
        const auto nodo = [&] { return Tira(l.nodi.size()); };
        const auto q = [&] {
            return !Tira(40) ? std::stod(Uno("-7|6000|40000"))
                             : passo * (griglia ? Tira(4) : Tira(80) / 4.0);
        };
        for (int n = 2 + Tira(14); n > 0; --n) l.punti.push_back({q(), Tira(2) ? q() : 0, q()});
        l.punti[1] = {1, 2, 3};
        for (int n = 1 + Tira(Tira(4) ? 20 : 99); n > 0; --n)
            l.nodi.push_back({Tira(l.punti.size()), nome(), colore(), Tira(4), Tira(4)});
        for (int n = Tira(20); n > 0; --n)
            l.aste.push_back(
                {nodo(), nodo(), nome(), colore(), Tira(6), Tira(5), Tira(4), Tira(3)});
        for (int n = Tira(10); n > 0; --n) {
            const int quarto = Tira(3) ? -Tira(2) : nodo();
            l.gusci.push_back(
                {{nodo(), nodo(), nodo(), quarto}, nome(), colore(), Tira(10), Tira(5)});
        }
        for (int n = Tira(6); n > 0; --n) {
            l.elementi.push_back({nome(), "Elemento", {}});
            for (int k = Tira(4); k > 0; --k) // mostly bars that there are
                l.elementi.back().aste.push_back(l.aste.empty() || !Tira(6)
                                                     ? 1 + Tira(30)
                                                     : abs(l.aste[Tira(l.aste.size())].nome));
        }
        for (int n = Tira(5); n > 0; --n) l.spessori.push_back({Tira(4), Tira(2) ? 20 : 0.5});
        for (int n = Tira(5); n > 0; --n) l.sezioni.push_back(Tira(4));
        return l;
    }
    string Elenco() {
        string s = Cifra(25);
        for (int n = Tira(5); n > 0; --n) s += "," + Cifra(25) + (Tira(3) ? "" : "-" + Cifra(40));
        return Tira(5) ? s
                       : Uno("|1-99|0-100|0-99|1-20001|5,32768|-3|8-5|abc,7|4 , 5x|1-3-5|2,,4|2.9"
                             "|1e1|99999-1");
    }
    // At a node, between nodes or anywhere; or beside, where a rule ends.
    string Posto(const Modello &m) {
        const auto punto = [&] { return m.pos[Tira(m.pos.size())]; };
        const Punto a = punto(), b = punto(), c = punto();
        const double t = m.Trappola(), s = Tira(5) / 4.0, u = Tira(1000) / 1e3,
                     v = Tira(1000) / 1e3;
        const Punto p =
            std::array<Punto, 4>{{{m.scala[0] + m.scala[2] * u, m.scala[1] + m.scala[3] * v},
                                  a,
                                  {a.x + s * (b.x - a.x), a.y + s * (b.y - a.y)},
                                  {(a.x + b.x + c.x) / 3, (a.y + b.y + c.y) / 3}}}[Tira(4)];
        const auto scarto = [&] {
            return std::array{0.,    0.,        1.,         -1.,     1.25,    -0.75,
                              1.003, 0.995 * t, -1.005 * t, 0.7 * t, 0.4 * t, -1.3 * t}[Tira(12)];
        };
        return ::testing::PrintToString(float(p.x + scarto())) + "," +
               ::testing::PrintToString(float(p.y + scarto()));
    }
    string Passo(const Modello &m) {
        const string px = " " + Cifra(160) + "," + Cifra(250), qx = " " + Cifra(160) + ",99";
        if (!m.fun && Tira(2)) return Uno("Aggiungi|Aggiungi|Rimuovi");
        if (m.risposta && Tira(3) == 0) return "= " + Elenco();
        switch (Tira(22)) {
        case 0: return "m " + Posto(m);
        case 1: return Uno("Aggiungi|Aggiungi|Rimuovi|Finestra");
        case 2: return "k" + Uno("0|1|2|2|3|4");
        case 3: return Uno("c" + Cifra(5) + "|t" + Cifra(3) + "|t0|t1|t2|W 5550|W 7000|W 99");
        case 4: return Uno("i|j") + Cifra(6) + " " + Uno("9|17|2.5|7.5|1000|-1000|abc||100");
        case 5: return Uno("a|b") + Cifra(3) + " " + Uno("0|0|0|30|-75|22.5|90|x1|");
        case 6:
        case 7: return "= " + Elenco();
        case 8: return Uno("P|Q") + " " + Uno("8|8|30|2|-7.6|200|2000|12abc||abc|0.9");
        case 9:
            return Uno("M" + px + qx + px + "|w 1|w -1|w -3|w 2|D|d " + Posto(m) + "|x|Ottimizza");
        case 10: return Uno("e|Ottimizza|ZoomIn|ZoomIn|Sposta|RimTutto|Inverti");
        case 11:
        case 12:
        case 13: return f.voci[static_cast<std::size_t>(Tira(f.voci.size()))]->NomeControllo();
        default: return "s " + Posto(m);
        }
    }

    void Misura(Modello &m) { m.largo = d.LarghezzaPixel(), m.alto = d.AltezzaPixel(); }
    void Mouse(Modello &m, char c, const string &resto, float x, float y, bool vero) {
        const double numero = std::strtod(resto.c_str(), nullptr);
        if (c == 's' || c == 'd') m.tasto = c == 's' ? 1 : 2;
        if (vero && (c == 's' || c == 'm')) d.MouseMove(0, 0, x, y);
        if (vero && (c == 's' || c == 'd')) d.MouseDown(m.tasto, 0, x, y);
        if (c == 's' || c == 'm') m.Muovi(x, y);
        if (c == 's') m.Premi(x, y);
        if (c == 'M') {
            std::istringstream r(resto), altri(resto);
            char virgola = 0;
            int px = 0, py = 0;
            for (int n = 0; vero && r >> px >> virgola >> py; ++n)
                (n ? d.MouseMove : d.MouseDown)(4, 0, float(d.XDaPixel(px)), float(d.YDaPixel(py)));
            if (vero) d.MouseUp(4, 0, 0, 0);
            m.Trascina(altri);
        }
        if (c == 'D') vero ? d.DblClick() : void(), m.tasto == 4 ? m.Ottimizza() : void();
        if (c == 'w') {
            if (vero) f.Rotella(int(numero));
            if (m.Piccola()) m.zoom = m.vista;
            const auto [p, q, r, t] = m.zoom;
            const double dx = (p - q) * numero * 0.1, dy = (r - t) * numero * 0.1;
            m.zoom = {p - dx, q + dx, r - dy, t + dy};
            if (!m.Piccola()) m.Ridis();
        }
        if (c == 'W') {
            if (vero) f.Width = numero, f.Height = 7120, f.Resize(), Misura(m);
            if (numero >= 5550) m.Adatta();
        }
    }
    void Caselle(Modello &m, char c, int k, const string &resto, bool vero) {
        const double numero = std::strtod(resto.c_str(), nullptr);
        if (c == 'e') vero ? f.KeyPress(27) : void(), m.Interrompi();
        if (c == 'x' && vero) f.KeyPress(65);
        if (c == '=') {
            if (vero && m.risposta) f.Risposta.Text = resto;
            if (vero) f.Risposta.KeyDown(13);
            if (m.risposta) m.testo = resto;
            m.Invio();
        }
        if (c == 'k') vero ? f.OptElem[k].Seleziona() : void(), m.tipo = k, m.Abilita();
        if (c == 'c') vero ? spunte[k]->Premi() : void(), m.spunte[k] = !m.spunte[k], m.Ridis();
        if (c == 't') vero ? tutto[k]->Click() : void(), m.Estremi(k), m.Ridis();
        if (c == 'i' || c == 'j' || c == 'a' || c == 'b') { // with Enter, and without
            CasellaTesto &casella = c > 'b' ? *intervalli[k] : f.Angolo[k];
            if (vero) casella.Text = resto;
            if (vero && (c == 'i' || c == 'a')) casella.KeyDown(13);
            (c > 'b' ? m.intervalli : m.angoli)[k] = resto;
            if (c == 'i' || c == 'a') m.Ridis();
        }
        if (c == 'P' || c == 'Q') {
            if (vero) f.Trappola.Click(), FormOptInt.TextTrappola.Text = resto;
            if (vero) c == 'P' ? FormOptInt.Command1.Click() : FormOptInt.KeyUp(27);
            if (c == 'P') m.trappola = abs(std::floor(numero));
            if (c == 'P' && m.trappola == 0) m.Dice(Messaggi[17], "ATTENZIONE", 1);
        }
    }
    // One step, of the model and (`vero`) of the program; false when nobody can do it now.
    bool Passa(Modello &m, const string &passo, bool vero) {
        std::istringstream s(passo);
        string parola, resto;
        s >> parola;
        std::getline(s >> std::ws, resto);
        const char c = parola[0];
        const int k = parola.back() - '0';
        if (parola.size() > 2) {
            for (const VoceMenu *v : f.voci)
                if (vero && v->NomeControllo() == parola && v->Click) v->Click();
            if (vero && parola == "Rappresentazione") FormOpt.KeyUp(27);
            if (vero) Misura(m);
            return (parola != "Interrompi" || m.fun) && m.Voce(parola);
        }
        float x = 0, y = 0;
        if (std::sscanf(resto.c_str(), "%f,%f", &x, &y); m.spostaA) { // pans are whole pixels
            const Quattro &v = m.scala;
            x = float(v[0] + std::round((x - v[0]) / v[2] * m.largo) * v[2] / m.largo);
            y = float(v[1] + std::round((y - v[1]) / v[3] * m.alto) * v[3] / m.alto);
        }
        if ((c == 's' || c == 'd') && !m.Visibile(x, y)) return false;
        Mouse(m, c, resto, x, y, vero);
        Caselle(m, c, k, resto, vero);
        return true;
    }
    // What differs; the model takes over the last digits of windows and scale.
    string Differenze(Modello &m) {
        std::ostringstream vero, atteso;
        const auto di = [&](const auto &v, const auto &a) { vero << v << '|', atteso << a << '|'; };
        di(+CodFunAttiva, m.fun), di(+CodSottoFun, m.sotto), di(PrimoAngolo, m.primo);
        di(SpostaInCorso, m.inCorso), di(ModoZoom, m.zoomA), di(ModoSposta, m.spostaA);
        di(FinestraAutomatica, m.autom), di(d.Shape.Visible(), m.primo);
        di(d.LineSposta.Visible(), m.linea), di(f.Risposta.Enabled(), m.risposta);
        di(f.Interrompi.Enabled(), m.fun != 0), di(f.LabCoord.Caption(), m.lab);
        const char *const titoli[] = {"", "Aggiungi selezione", "Rimuovi selezione"};
        di(f.FunAttiva.Caption(), titoli[m.fun]), di(f.SottoFunAttiva.Caption(), m.sottoTxt);
        di(f.Domanda.Caption(), m.domanda), di(f.Risposta.Text(), m.testo);
        di(f.StringaSel.Caption(), m.str[m.tipo]);
        for (int k = 0; k < 13; ++k) di("-x"[f.Selezioni.voci[k]->Enabled], m.abil[k]);
        for (int k = 0; k < 6; ++k) di(intervalli[k]->Text(), m.intervalli[k]);
        for (int k = 0; k < 3; ++k) di(f.Angolo[k].Text(), m.angoli[k]);
        std::int16_t *const sel[] = {SelNodo.Dati(), SelAsta.Dati(), SelGuscio.Dati(),
                                     SelElCont.Dati()},
                            *const att[] = {AttNodo.Dati(), AttAsta.Dati(), AttGuscio.Dati()};
        for (int t = 0; t < 4; ++t)
            for (std::size_t n = 0; n < m.el[t].size(); ++n)
                di(sel[t][n] + (t < 3 ? 2 * att[t][n] : 0), m.el[t][n].sel + 2 * m.el[t][n].att);
        string detti;
        for (const auto &x : messaggi) detti += x.titolo + to_string(int(x.icona)) + x.testo;
        di(detti, m.messaggi);
        messaggi.clear(), m.messaggi.clear();
        string s = vero.str() == atteso.str() ? "" : vero.str() + "\ninstead of\n" + atteso.str();
        const auto vicini = [&](Quattro &modello, const Quattro &v) {
            const double misura = max({0.1, abs(v[0]), abs(v[1]), abs(v[2]), abs(v[3])});
            for (int n = 0; n < 4; ++n)
                if (!(abs(modello[n] - v[n]) <= 1e-6 * misura))
                    s += "\n" + to_string(v[n]) + " instead of " + to_string(modello[n]);
            modello = v;
        };
        const auto di4 = [](const FinestraDisegno &w) {
            return Quattro{w.primaX, w.secondaX, w.primaY, w.secondaY};
        };
        const Quattro scala{d.ScaleLeft, d.ScaleTop, d.ScaleWidth, d.ScaleHeight};
        if (!m.scalaNota) m.scala = scala; // a first view without area
        vicini(m.zoom, di4(FinestraZoom)), vicini(m.vista, di4(FinestraVista));
        vicini(m.scala, scala);
        return s;
    }
    // Every list and every pixel seen, in one number: what two builds must have in common.
    std::uint64_t impronta = 0;
    void Imprimi() {
        if (!std::getenv("TELVA_IMPRONTA")) return;
        const auto mescola = [this](std::uint64_t v) {
            impronta = (impronta ^ v) * 1099511628211U;
        };
        for (const char c : f.StringaSel.Caption()) mescola(static_cast<unsigned char>(c));
        for (int y = 0; y < d.Immagine().Altezza(); ++y)
            for (int x = 0; x < d.Immagine().Larghezza(); ++x) mescola(d.Immagine().Leggi(x, y));
    }
    // Plays the steps, then `nuovi` more that are added to them. What differs first, the steps then
    // cut after it; or nothing.
    string Gioca(const LavoroProva &l, Passi &passi, int nuovi) {
        AzzeraProgramma();
        messaggi.clear();
        for (auto &angolo : f.Angolo) angolo.Text = "0";
        if (!Avvia()) return "no start";
        Modello m(l);
        for (int k = 0; k < 3; ++k) m.Estremi(k);
        Misura(m);
        m.Ottimizza();
        string diverso = Differenze(m);
        for (int n = 0; diverso.empty() && (n < std::ssize(passi) || nuovi-- > 0); ++n) {
            if (n == std::ssize(passi)) passi.push_back(n == 0 ? "W 5550" : Passo(m));
            Modello prova = m;
            if (!Passa(prova, passi[n], false) || prova.dubbio) {
                passi.erase(passi.begin() + n--);
                continue;
            }
            if (!Esegui([&] { Passa(m, passi[n], true); }))
                diverso = "the end: " + ::testing::PrintToString(messaggi);
            else
                diverso = Differenze(m), Imprimi();
            if (!diverso.empty()) passi.resize(n + 1);
        }
        if (!diverso.empty()) return diverso;
        const string riga = (m.str[m.tipo].empty() ? " " : m.str[m.tipo]) + "\r\n";
        Esegui([&] { f.Salva.Click(); });
        return Leggi("lavori/prova1/TelvaOut.txt") == riga ? "" : "TelvaOut.txt is not " + riga;
    }
};

TEST_F(SequenzeProva, ComeLeRegole) {
    const auto ambiente = [](const char *nome, int altrimenti) {
        const char *v = std::getenv(nome);
        return v ? std::atoi(v) : altrimenti;
    };
    Installa();
    for (int k = 0, primo = ambiente("TELVA_SEME", 1); k < ambiente("TELVA_SEMI", 150); ++k) {
        caso.seed(static_cast<unsigned>(primo + k));
        const LavoroProva l = Lavoro();
        ScriviLavoro(l);
        Passi passi;
        string diverso = Gioca(l, passi, ambiente("TELVA_PASSI", 250)), ora, testo;
        if (diverso.empty()) continue;
        for (auto blocco = passi.size(); blocco > 0; blocco /= 2) // to the shortest that is found
            for (std::size_t n = 0; n < passi.size();) {
                Passi meno(passi.begin(), passi.begin() + long(n));
                meno.insert(meno.end(), passi.begin() + long(min(n + blocco, passi.size())),
                            passi.end());
                ora = Gioca(l, meno, 0);
                ora.empty() ? n += blocco : (passi = meno, diverso = ora, n);
            }
        for (const auto &p : passi) testo += p + "\n";
        FAIL() << "seed " << primo + k << "\n" << testo << diverso << "\n" << l.Struttura();
    }
    if (impronta != 0) std::cout << "impronta " << std::hex << impronta << "\n";
}
} // namespace telva::prove
