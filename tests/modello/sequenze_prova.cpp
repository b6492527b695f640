// Random sequences of what a user can do, on random jobs, against the model of the rules. By hand:
// TELVA_SEME=7 TELVA_SEMI=100 TELVA_PASSI=5000 prove_telva --gtest_filter=*Sequenze*
// A failure prints the job and the steps as the lines of a test that does them again.
#include "model/struttura.h"
#include "modello/Caso.h"
#include "selection/selezione.h"
#include "startup/avvio.h"
#include "ui/controlli/FormOpt.h"
#include "ui/controlli/FormTelva.h"
#include "ui/gesto.h"
#include "view/inquadra.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <sstream>

namespace telva::prove {
namespace {

using Passi = std::vector<PassoCasuale>;

constexpr double kAltezza = 7120; // twips: the smallest height

// What is not as the rules say, a line each.
class Confronto {
  public:
    template <class V, class A>
    void Uguali(const std::string &che, const V &visto, const A &atteso) {
        if (visto == atteso) return;
        differenze_ << che << ": " << ::testing::PrintToString(visto) << " instead of "
                    << ::testing::PrintToString(atteso) << "\n";
    }
    // Within the last digits of numbers of this size.
    void Vicini(const std::string &che, double visto, double atteso, double misura) {
        if (!(std::abs(visto - atteso) <= 1e-6 * misura)) Uguali(che, visto, atteso);
    }
    std::string Differenze() const { return differenze_.str(); }

  private:
    std::ostringstream differenze_;
};

// What a difference is measured by: the size of the window, and the digits that are left of
// numbers far from the origin.
double Misura(double larghezza, double altezza, double x, double y) {
    return std::max({0.1, std::abs(larghezza), std::abs(altezza)}) +
           1e-8 * std::max(std::abs(x), std::abs(y));
}

// The model takes over the last digits.
void ConfrontaFinestra(Confronto &c, const std::string &che, const FinestraDisegno &vista,
                       Riquadro &attesa) {
    const double misura = Misura(vista.primaX - vista.secondaX, vista.primaY - vista.secondaY,
                                 vista.primaX, vista.primaY);
    c.Vicini(che + " primaX", vista.primaX, attesa.maxX, misura);
    c.Vicini(che + " secondaX", vista.secondaX, attesa.minX, misura);
    c.Vicini(che + " primaY", vista.primaY, attesa.maxY, misura);
    c.Vicini(che + " secondaY", vista.secondaY, attesa.minY, misura);
    attesa = {vista.primaX, vista.secondaX, vista.primaY, vista.secondaY};
}

void ConfrontaScala(Confronto &c, const RiquadroDisegno &d, Modello &m) {
    const Scala vista{d.ScaleLeft, d.ScaleTop, d.ScaleWidth, d.ScaleHeight};
    const double misura = Misura(d.ScaleWidth, d.ScaleHeight, d.ScaleLeft, d.ScaleTop);
    c.Vicini("ScaleLeft", vista.sinistra, m.scala.sinistra, misura);
    c.Vicini("ScaleTop", vista.alto, m.scala.alto, misura);
    c.Vicini("ScaleWidth", vista.larghezza, m.scala.larghezza, misura);
    c.Vicini("ScaleHeight", vista.altezza, m.scala.altezza, misura);
    m.scala = vista;
}

void ConfrontaElementi(Confronto &c, const Modello &m) {
    struct Tabella {
        const char *che;
        const std::int16_t *selezionati, *attivi;
    };
    const Tabella tabelle[] = {{"node", SelNodo.Dati(), AttNodo.Dati()},
                               {"bar", SelAsta.Dati(), AttAsta.Dati()},
                               {"shell", SelGuscio.Dati(), AttGuscio.Dati()},
                               {"continuous element", SelElCont.Dati(), nullptr}};
    for (std::size_t t = 0; t < m.elementi.size(); ++t)
        for (std::size_t n = 0; n < m.elementi[t].size(); ++n) {
            const Elemento &e = m.elementi[t][n];
            const std::string che = std::string(tabelle[t].che) + " " + std::to_string(e.nome) +
                                    " at place " + std::to_string(n);
            c.Uguali(che + ", selected", tabelle[t].selezionati[n], int(e.selezionato));
            if (tabelle[t].attivi) c.Uguali(che + ", active", tabelle[t].attivi[n], int(e.attivo));
        }
}

} // namespace

// What a sequence starts from.
struct Inizio {
    LavoroProva lavoro;
    Ingresso ingresso;
};

struct SequenzeProva : Utente {
    ModuloTelva &f = FormTelva;
    RiquadroDisegno &d = FormTelva.Disegno;

    // --- a step in the program
    void Fai(const passi::Menu &p) {
        Menu(p.voce);
        if (p.voce == "Rappresentazione") FormOpt.KeyUp(27);
    }
    void Fai(const passi::Muovi &p) { Muovi(p.x, p.y); }
    void Fai(const passi::Clic &p) { Clic(p.x, p.y); }
    void Fai(const passi::ClicDestro &p) { ClicDestro(p.x, p.y); }
    void Fai(const passi::Trascina &p) {
        std::vector<Pixel> pixel;
        for (const auto &[x, y] : p.pixel) pixel.push_back({x, y});
        Trascina(pixel);
    }
    void Fai(const passi::DoppioClic &) { DoppioClic(); }
    void Fai(const passi::Rotella &p) { Rotella(p.passi); }
    void Fai(const passi::Larghezza &p) { Ridimensiona(p.twip, kAltezza); }
    void Fai(const passi::Esc &) { Esc(); }
    void Fai(const passi::Lettera &) { Lettera('A'); }
    void Fai(const passi::Risposta &p) { f.Risposta.Enabled ? Elenco(p.testo) : Invio(); }
    void Fai(const passi::Tipo &p) { Tipo(p.tipo); }
    void Fai(const passi::Mostra &p) { Mostra(p.filtro); }
    void Fai(const passi::Tutto &p) { Tutto(p.asse); }
    void Fai(const passi::Intervallo &p) { Intervallo(p.estremo, p.testo, p.invio); }
    void Fai(const passi::Angolo &p) { Angolo(p.asse, p.testo, p.invio); }
    void Fai(const passi::Trappola &p) { Trappola(p.testo, p.applica); }

    // --- the same by the rules; false when nobody can do it now
    static bool Segui(Modello &m, const passi::Menu &p) { return m.Menu(p.voce); }
    static bool Segui(Modello &m, const passi::Muovi &p) { return m.Muovi(p.x, p.y), true; }
    static bool Segui(Modello &m, const passi::Clic &p) { return m.Clic(p.x, p.y); }
    static bool Segui(Modello &m, const passi::ClicDestro &p) { return m.ClicDestro(p.x, p.y); }
    static bool Segui(Modello &m, const passi::Trascina &p) { return m.Trascina(p.pixel), true; }
    static bool Segui(Modello &m, const passi::DoppioClic &) { return m.DoppioClic(), true; }
    static bool Segui(Modello &m, const passi::Rotella &p) { return m.Rotella(p.passi), true; }
    static bool Segui(Modello &m, const passi::Larghezza &p) {
        return m.Ridimensionata(p.twip), true;
    }
    static bool Segui(Modello &m, const passi::Esc &) { return m.Esc(), true; }
    static bool Segui(Modello &, const passi::Lettera &) { return true; }
    static bool Segui(Modello &m, const passi::Risposta &p) { return m.Invio(p.testo), true; }
    static bool Segui(Modello &m, const passi::Tipo &p) { return m.ScegliTipo(p.tipo), true; }
    static bool Segui(Modello &m, const passi::Mostra &p) {
        return m.Mostra(static_cast<int>(p.filtro)), true;
    }
    static bool Segui(Modello &m, const passi::Tutto &p) {
        return m.Tutto(static_cast<int>(p.asse)), true;
    }
    static bool Segui(Modello &m, const passi::Intervallo &p) {
        return m.Intervallo(static_cast<int>(p.estremo), p.testo, p.invio), true;
    }
    static bool Segui(Modello &m, const passi::Angolo &p) {
        return m.Angolo(static_cast<int>(p.asse), p.testo, p.invio), true;
    }
    static bool Segui(Modello &m, const passi::Trappola &p) {
        if (p.applica) m.Trappola(p.testo);
        return true;
    }
    static bool Regole(Modello &m, const PassoCasuale &passo) {
        return std::visit([&](const auto &p) { return Segui(m, p); }, passo);
    }

    // A pan goes by whole pixels of what is shown now.
    static PassoCasuale AlPixel(const Modello &m, PassoCasuale passo) {
        const auto sposta = [&](auto &p) {
            if constexpr (requires { p.x; }) {
                const Punto q = m.AlPixel(p.x, p.y);
                p.x = q.x;
                p.y = q.y;
            }
        };
        std::visit(sposta, passo);
        return passo;
    }

    void Misura(Modello &m) const {
        m.largo = d.LarghezzaPixel();
        m.alto = d.AltezzaPixel();
    }

    void ConfrontaTesti(Confronto &c, const Modello &m) const {
        static const char *const kTitoli[] = {"", "Aggiungi selezione", "Rimuovi selezione"};
        c.Uguali("FunAttiva", f.FunAttiva.Caption(), kTitoli[m.funzione]);
        c.Uguali("SottoFunAttiva", f.SottoFunAttiva.Caption(), m.sottoFunAttiva);
        c.Uguali("Domanda", f.Domanda.Caption(), m.domanda);
        c.Uguali("Risposta", f.Risposta.Text(), m.testoRisposta);
        c.Uguali("Risposta.Enabled", f.Risposta.Enabled(), m.risposta);
        c.Uguali("LabCoord", f.LabCoord.Caption(), m.labCoord);
        c.Uguali("StringaSel", f.StringaSel.Caption(), m.liste[m.tipo]);
        const CasellaTesto *const intervalli[] = {&f.IntX[0], &f.IntX[1], &f.IntY[0],
                                                  &f.IntY[1], &f.IntZ[0], &f.IntZ[1]};
        for (std::size_t k = 0; k < m.intervalli.size(); ++k)
            c.Uguali(intervalli[k]->NomeControllo(), intervalli[k]->Text(), m.intervalli[k]);
        for (int k = 0; k < 3; ++k)
            c.Uguali(f.Angolo[k].NomeControllo(), f.Angolo[k].Text(), m.angoli[k]);
    }

    void ConfrontaStato(Confronto &c, const Modello &m) const {
        c.Uguali("CodFunAttiva", +CodFunAttiva, int(m.funzione));
        c.Uguali("CodSottoFun", +CodSottoFun, static_cast<int>(m.sotto));
        c.Uguali("PrimoAngolo", PrimoAngolo != 0, m.primoAngolo);
        c.Uguali("SpostaInCorso", SpostaInCorso != 0, m.spostaInCorso);
        c.Uguali("ModoZoom", ModoZoom != 0, m.modoZoom);
        c.Uguali("ModoSposta", ModoSposta != 0, m.modoSposta);
        c.Uguali("FinestraAutomatica", FinestraAutomatica != 0, m.finestraAutomatica);
        c.Uguali("Shape.Visible", d.Shape.Visible(), m.primoAngolo);
        c.Uguali("LineSposta.Visible", d.LineSposta.Visible(), m.lineaSposta);
        c.Uguali("Interrompi.Enabled", f.Interrompi.Enabled(), m.funzione != Modello::Niente);
        for (const VoceMenu *voce : f.Selezioni.voci)
            c.Uguali(voce->NomeControllo() + ".Enabled", voce->Enabled(),
                     m.abilitate.contains(voce->NomeControllo()));
    }

    std::string Differenze(Modello &m) {
        Confronto c;
        ConfrontaStato(c, m);
        ConfrontaTesti(c, m);
        ConfrontaElementi(c, m);
        std::string detti;
        for (const Messaggio &x : messaggi)
            detti += x.titolo + std::to_string(static_cast<int>(x.icona)) + x.testo;
        c.Uguali("messages", detti, m.messaggi);
        messaggi.clear();
        m.messaggi.clear();
        ConfrontaFinestra(c, "FinestraZoom", FinestraZoom, m.zoom);
        ConfrontaFinestra(c, "FinestraVista", FinestraVista, m.vista);
        ConfrontaScala(c, d, m);
        return c.Differenze();
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

    // One step in both; what differs then.
    std::string Confronta(Modello &m, const PassoCasuale &passo) {
        try {
            std::visit([this](const auto &p) { Fai(p); }, passo);
        } catch (const std::logic_error &impossibile) {
            return impossibile.what();
        }
        if (Finito()) return "the end: " + ::testing::PrintToString(messaggi);
        Misura(m);
        Regole(m, passo);
        return Differenze(m);
    }

    std::string ConfrontaUscita(const Modello &m) {
        const std::string &lista = m.liste[m.tipo];
        Menu("Salva");
        Confronto c;
        c.Uguali("TelvaOut.txt", Uscita(), (lista.empty() ? " " : lista) + "\r\n");
        return c.Differenze();
    }

    // Plays the steps, then `nuovi` more that are drawn and added to them. What differs first, the
    // steps then cut after it; or nothing.
    std::string Gioca(const Inizio &inizio, Passi &passi, Caso *caso, int nuovi) {
        AzzeraProgramma();
        DimenticaPassi();
        messaggi.clear();
        for (auto &angolo : f.Angolo) angolo.Text = "0";
        if (!Avvia()) return "no start: " + ::testing::PrintToString(messaggi);
        Modello m(inizio.lavoro);
        Misura(m);
        m.Avvio(inizio.ingresso);
        std::string diverso = Differenze(m);
        for (std::size_t n = 0; diverso.empty() && (n < passi.size() || nuovi-- > 0);) {
            if (n == passi.size())
                passi.push_back(n == 0 ? passi::Larghezza{5550} : caso->Passo(m));
            const PassoCasuale passo = AlPixel(m, passi[n]);
            Modello prova = m;
            if (!Regole(prova, passo) || prova.dubbio) {
                passi.erase(passi.begin() + static_cast<long>(n));
                continue;
            }
            diverso = Confronta(m, passo);
            if (diverso.empty()) Imprimi();
            ++n;
            if (!diverso.empty()) passi.resize(n);
        }
        return diverso.empty() ? ConfrontaUscita(m) : diverso;
    }

    // Leaves steps out, as long as something differs.
    std::string Accorcia(const Inizio &inizio, Passi &passi, std::string diverso) {
        for (std::size_t blocco = passi.size(); blocco > 0; blocco /= 2)
            for (std::size_t n = 0; n < passi.size();) {
                Passi meno = passi;
                const std::size_t fine = std::min(n + blocco, passi.size());
                meno.erase(meno.begin() + static_cast<long>(n),
                           meno.begin() + static_cast<long>(fine));
                const std::string ora = Gioca(inizio, meno, nullptr, 0);
                if (ora.empty()) {
                    n += blocco;
                } else {
                    passi = meno;
                    diverso = ora;
                }
            }
        Gioca(inizio, passi, nullptr, 0); // for the story of the failure
        return diverso;
    }
};

TEST_F(SequenzeProva, ComeLeRegole) {
    const auto ambiente = [](const char *nome, int altrimenti) {
        const char *v = std::getenv(nome);
        return v ? std::atoi(v) : altrimenti;
    };
    Installa();
    const int primo = ambiente("TELVA_SEME", 1), quanti = ambiente("TELVA_SEMI", 150);
    for (int seme = primo; seme < primo + quanti; ++seme) {
        Caso caso(static_cast<unsigned>(seme));
        const Inizio inizio{.lavoro = caso.Lavoro(), .ingresso = caso.InIngresso()};
        ScriviLavoro(inizio.lavoro);
        ScriviIngresso("", inizio.ingresso.lista, inizio.ingresso.tipo);
        Passi passi;
        const std::string diverso = Gioca(inizio, passi, &caso, ambiente("TELVA_PASSI", 250));
        if (diverso.empty()) continue;
        FAIL() << "seed " << seme << "\n"
               << Accorcia(inizio, passi, diverso)
               << "\nThe job (its settings are those of Installa):\n"
               << Dichiarazione(inizio.lavoro) << "TelvaIn.txt:\n"
               << Leggi("lavori/prova1/TelvaIn.txt") << "custom/TelOpInt.txt:\n"
               << Leggi("custom/TelOpInt.txt") << "custom/TelOpzio.txt:\n"
               << Leggi("custom/TelOpzio.txt");
    }
    if (impronta != 0) std::cout << "impronta " << std::hex << impronta << "\n";
}

} // namespace telva::prove
