// Random sequences of what a user can do, on random jobs, against the model of the rules. By hand:
// TELVA_SEME=7 TELVA_SEMI=100 TELVA_PASSI=5000 prove_telva --gtest_filter=*Sequenze*
// A failure prints the job and the steps, as few as do it again, as they stand in a test.
#include "model/struttura.h"
#include "modello/Caso.h"
#include "selection/selezione.h"
#include "startup/avvio.h"
#include "ui/controlli/FormOpt.h"
#include "ui/controlli/FormTelva.h"
#include "ui/gesto.h"
#include "ui/stato.h"
#include "view/inquadra.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <iomanip>
#include <sstream>

namespace telva::prove {
namespace {

using Passi = std::vector<PassoCasuale>;

// By their codes.
const char *const kSottoFunzioni[] = {
    "",           "Finestra",    "Materiale",       "Nome",        "Diretta",
    "SchSezione", "SchSpessore", "SchOrientamento", "SchSvincolo", "SchVincolo"};
const PassoCasuale kPiccola = [](auto &chi) { chi.Ridimensiona(5550, 7120); };

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
    using Quattro = std::array<double, 4>;
    using Nomi = std::array<const char *, 4>;
    void Vicini(const std::string &che, const Nomi &nomi, const Quattro &visti,
                const Quattro &attesi, double misura) {
        for (std::size_t k = 0; k < visti.size(); ++k)
            if (!(std::abs(visti[k] - attesi[k]) <= 1e-6 * misura))
                differenze_ << che << "." << nomi[k] << ": " << std::setprecision(15) << visti[k]
                            << " instead of " << attesi[k] << "\n";
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
    const auto &[maxX, minX, maxY, minY] = vista;
    c.Vicini(che, {"primaX", "secondaX", "primaY", "secondaY"}, {maxX, minX, maxY, minY},
             {attesa.maxX, attesa.minX, attesa.maxY, attesa.minY},
             Misura(maxX - minX, maxY - minY, maxX, maxY));
    attesa = {maxX, minX, maxY, minY};
}

void ConfrontaScala(Confronto &c, const RiquadroDisegno &d, Scala &attesa) {
    const double sinistra = d.ScaleLeft, alto = d.ScaleTop, largo = d.ScaleWidth,
                 altezza = d.ScaleHeight;
    c.Vicini("Scale", {"Left", "Top", "Width", "Height"}, {sinistra, alto, largo, altezza},
             {attesa.sinistra, attesa.alto, attesa.larghezza, attesa.altezza},
             Misura(largo, altezza, sinistra, alto));
    attesa = {sinistra, alto, largo, altezza};
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
        c.Uguali("state", ComponiStato().adesso, m.Adesso());
        c.Uguali("state, before it", ComponiStato().evidenza, m.Evidenza());
        c.Uguali("Trappola", f.Trappola.Caption(), "Trappola (" + Letterale(m.trappola) + ")...");
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
        c.Uguali("CodSottoFun", std::string(kSottoFunzioni[CodSottoFun]), m.sotto);
        c.Uguali("PrimoAngolo", PrimoAngolo != 0, m.primoAngolo);
        c.Uguali("SpostaInCorso", SpostaInCorso != 0, m.spostaInCorso);
        c.Uguali("ModoZoom", ModoZoom != 0, m.modoZoom);
        c.Uguali("ModoSposta", ModoSposta != 0, m.modoSposta);
        c.Uguali("FinestraAutomatica", FinestraAutomatica != 0, m.finestraAutomatica);
        c.Uguali("Shape.Visible", d.Shape.Visible(), m.primoAngolo);
        c.Uguali("LineSposta.Visible", d.LineSposta.Visible(), m.lineaSposta);
        const Rettangolo &r = d.Shape;
        const Segmento &l = d.LineSposta;
        // To a part of a pixel, as events come; those in single precision may be older than the
        // scale of now.
        const double misura =
            1e2 * std::abs(d.ScaleWidth) + 0.2 * std::max(std::abs(r.Left), std::abs(l.X1));
        if (r.Visible)
            c.Vicini("Shape", {"Left", "Top", "Width", "Height"},
                     {r.Left, r.Top, r.Width, r.Height}, m.Rettangolo(), misura);
        if (l.Visible)
            c.Vicini("LineSposta", {"X1", "Y1", "X2", "Y2"}, {l.X1, l.Y1, l.X2, l.Y2}, m.Linea(),
                     misura);
        const auto forma = [](Puntatore puntatore) { return static_cast<int>(puntatore); };
        c.Uguali("MousePointer", forma(f.MousePointer), 0); // no hourglass is left
        c.Uguali("Disegno.MousePointer", forma(d.MousePointer), forma(m.puntatore));
        c.Uguali("FrameCoord.Visible", f.FrameCoord.Visible(), m.coordinate);
        c.Uguali("Interrompi.Enabled", f.Interrompi.Enabled(), m.funzione != Modello::kNiente);
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
            detti += x.titolo + std::to_string(static_cast<int>(x.gravita)) + x.testo;
        c.Uguali("messages", detti, m.messaggi);
        messaggi.clear();
        m.messaggi.clear();
        ConfrontaFinestra(c, "FinestraZoom", FinestraZoom, m.zoom);
        ConfrontaFinestra(c, "FinestraVista", FinestraVista, m.vista);
        ConfrontaScala(c, d, m.scala);
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

    // Whole, each below its name.
    std::string FileDelLavoro() const {
        std::string testo;
        for (const std::string file : {"STRUTTUR.STR", "Ingombri.tmp", "spessori", "sezioni_",
                                       "el_conti.tmp", "TelvaIn.txt"})
            testo += "--- " + file + "\n" + Leggi("lavori/prova1/" + file);
        std::erase(testo, '\r');
        return testo;
    }

    // One step in both; what differs then.
    std::string Confronta(Modello &m, const PassoCasuale &passo) {
        try {
            passo.programma(*this);
            if (FormOpt.Mostrata()) FormOpt.KeyUp(kEsc);
        } catch (const std::logic_error &impossibile) {
            return impossibile.what();
        }
        if (Finito()) return "the end: " + ::testing::PrintToString(messaggi);
        Misura(m);
        passo.regole(m);
        return Differenze(m);
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
            if (n == passi.size()) passi.push_back(n == 0 ? kPiccola : caso->Passo(m));
            Modello prova = m;
            passi[n].regole(prova);
            if (prova.salta) {
                passi.erase(passi.begin() + static_cast<long>(n));
                continue;
            }
            diverso = Confronta(m, passi[n]);
            if (diverso.empty()) Imprimi();
            ++n;
            if (!diverso.empty()) passi.erase(passi.begin() + static_cast<long>(n), passi.end());
        }
        if (!diverso.empty()) return diverso;
        Menu("Salva");
        const std::string &lista = m.liste[m.tipo];
        Confronto c;
        c.Uguali("TelvaOut.txt", Uscita(), (lista.empty() ? " " : lista) + "\r\n");
        return c.Differenze();
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
               << Accorcia(inizio, passi, diverso) << "\nThe job is Apri(Caso(" << seme
               << ").Lavoro()), after ScriviIngresso with the list and the kind of TelvaIn.txt; "
               << "its files:\n"
               << FileDelLavoro();
    }
    if (impronta != 0) std::cout << "impronta " << std::hex << impronta << "\n";
}

} // namespace telva::prove
