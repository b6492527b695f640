#include "modello/Caso.h"

#include "ui/controlli/FormTelva.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace telva::prove {
namespace {

constexpr double kAlto = 7120; // twips: the smallest height

// A place as it is printed: short steps in the story of a failure. Far from the origin every digit
// counts.
double SeiCifre(double v) {
    if (std::abs(v) > 1e5) return v;
    char testo[32];
    std::snprintf(testo, sizeof testo, "%.6g", static_cast<double>(static_cast<float>(v)));
    return static_cast<double>(std::strtof(testo, nullptr));
}

} // namespace

// --- a job

int Caso::Nome() { return Tira(8) ? 1 + Tira(nomi_) : Una({0, -3, 20000, 1}); }

int Caso::Colore() { return Tira(6) ? 1 + Tira(3) : Tira(14); }

double Caso::Coordinata() {
    if (Tira(40) == 0) return Una({-7.0, 6000.0, 40000.0});
    return passo_ * (griglia_ ? Tira(4) : Tira(80) / 4.0);
}

void Caso::Nodi(LavoroProva &l) {
    for (int n = 2 + Tira(14); n > 0; --n) {
        const double x = Coordinata();
        const double y = Tira(2) ? Coordinata() : 0;
        const double z = Coordinata();
        l.punti.push_back({x, y, z});
    }
    l.punti[1] = {1, 2, 3};
    if (Tira(6) == 0) { // one plane, or one line, seen from its edge; or nearly so
        const int asse = Tira(3), altro = Tira(3);
        const double spessore = Una({0.0, 0.05});
        for (auto &punto : l.punti) punto[asse] = punto[altro] = Tira(2) * spessore;
    }
    if (Tira(6) == 0) { // map coordinates
        const double lontano = Una({4e6, 4e7, 5e8});
        for (auto &punto : l.punti)
            for (double &v : punto) v += lontano;
    }
    const bool pochi = Tira(4) != 0;
    for (int n = 1 + Tira(pochi ? 20 : 99); n > 0; --n)
        l.nodi.push_back({.punto = Tira(l.punti.size()),
                          .nome = Nome(),
                          .colore = Colore(),
                          .tipo = Tira(4),
                          .vincolo = Tira(4)});
}

// The name of a bar that there may not be; now and then one that cannot be.
int Caso::AstaIgnota() {
    if (Tira(3) == 0) return Una({-1, 20001, 32000});
    return 1 + Tira(30);
}

void Caso::Elementi(LavoroProva &l) {
    const auto nodo = [&] { return Tira(l.nodi.size()); };
    for (int n = Tira(20); n > 0; --n)
        l.aste.push_back({.i = nodo(),
                          .j = nodo(),
                          .nome = Nome(),
                          .colore = Colore(),
                          .tipo = Tira(6),
                          .sezione = Tira(5),
                          .svincolo = Tira(4),
                          .orientamento = Tira(3)});
    for (int n = Tira(10); n > 0; --n) {
        const int quarto = Tira(3) ? -Tira(2) : nodo();
        l.gusci.push_back({.nodi = {nodo(), nodo(), nodo(), quarto},
                           .nome = Nome(),
                           .colore = Colore(),
                           .tratto = Tira(10),
                           .spessore = Tira(5)});
    }
    for (int n = Tira(6); n > 0; --n) {
        l.elementi.push_back({.numero = Nome(), .nome = "Elemento", .aste = {}});
        for (int k = Tira(4); k > 0; --k) { // mostly bars that there are
            const bool ignota = l.aste.empty() || Tira(6) == 0;
            l.elementi.back().aste.push_back(ignota ? AstaIgnota()
                                                    : std::abs(l.aste[Tira(l.aste.size())].nome));
        }
    }
}

LavoroProva Caso::Lavoro() {
    LavoroProva l;
    griglia_ = Tira(2) != 0;
    passo_ = Una({1, 10, 50});
    nomi_ = 4 + Tira(30);
    Nodi(l);
    Elementi(l);
    for (int n = Tira(5); n > 0; --n)
        l.spessori.push_back({.materiale = Tira(4), .valore = Una({20.0, 1.0, 0.5})});
    for (int n = Tira(5); n > 0; --n) l.sezioni.push_back(Tira(4));
    return l;
}

// Mostly no list.
Ingresso Caso::InIngresso() {
    const int tipo = Tira(5);
    if (Tira(3)) return {.lista = "", .tipo = tipo};
    return {.lista = Tira(4) ? Elenco() : Testo({"0", "7,40000", "1-20001"}), .tipo = tipo};
}

// --- a step

std::string Caso::Elenco() {
    std::string s = std::to_string(Tira(25));
    for (int n = Tira(5); n > 0; --n) {
        const std::string fine = Tira(3) ? "" : "-" + std::to_string(Tira(40));
        s += "," + std::to_string(Tira(25)) + fine;
    }
    if (Tira(5)) return s;
    return Testo({"", "1-99", "0-100", "0-99", "1-20001", "5,32768", "-3", "8-5", "abc,7", "4 , 5x",
                  "1-3-5", "2,,4", "2.9", "1e1", "99999-1"});
}

// At a node, between nodes or anywhere; or beside, where a rule ends.
Punto Caso::PuntoScelto(const Modello &m) {
    const auto punto = [&] { return m.punti[Tira(m.punti.size())]; };
    const Punto a = punto(), b = punto(), c = punto();
    const double s = Tira(5) / 4.0, u = Tira(1000) / 1e3, v = Tira(1000) / 1e3;
    const Punto p =
        Una<Punto>({{m.scala.sinistra + m.scala.larghezza * u, m.scala.alto + m.scala.altezza * v},
                    a,
                    {a.x + s * (b.x - a.x), a.y + s * (b.y - a.y)},
                    {(a.x + b.x + c.x) / 3, (a.y + b.y + c.y) / 3}});
    const double t = m.RaggioTrappola();
    const auto scarto = [&] {
        return Una({0., 0., 1., -1., 1.25, -0.75, 1.003, 0.995 * t, -1.005 * t, 0.7 * t, 0.4 * t,
                    -1.3 * t});
    };
    const double y = SeiCifre(p.y + scarto()), x = SeiCifre(p.x + scarto());
    const Punto evento = m.Evento(x, y);
    return m.AlPixel(evento.x, evento.y);
}

PassoCasuale Caso::Filtri() {
    const auto asse = static_cast<Asse>(Tira(3));
    const auto filtro = static_cast<Filtro>(Tira(kFiltri));
    const auto tutto = [](Asse quale) { return [=](auto &chi) { chi.Tutto(quale); }; };
    const auto largo = [](double twip) {
        return [=](auto &chi) { chi.Ridimensiona(twip, kAlto); };
    };
    return Una<PassoCasuale>({[=](auto &chi) { chi.Mostra(filtro); }, tutto(asse), tutto(Asse::X),
                              tutto(Asse::Y), tutto(Asse::Z), largo(5550), largo(7000), largo(99)});
}

PassoCasuale Caso::Vista(const Modello &m, const PassoCasuale &trascina) {
    const Punto p = PuntoScelto(m);
    const auto rotella = [](int passi) { return [=](auto &chi) { chi.Rotella(passi); }; };
    const int tasto = Una({kTastoSinistra, kTastoSu, kTastoDestra, kTastoGiu, kTastoPiuCifre,
                           kTastoMenoCifre, kTastoPiu, kTastoMeno, int{'A'}});
    return Una<PassoCasuale>(
        {trascina, rotella(1), rotella(-1), rotella(-3), rotella(2),
         [=](auto &chi) { chi.Tasto(tasto); }, [](auto &chi) { chi.DoppioClic(); },
         [=](auto &chi) { chi.ClicDestro(p.x, p.y); }, [](auto &chi) { chi.Lettera('A'); },
         [](auto &chi) { chi.Menu("Ottimizza"); }});
}

// Something that is typed.
PassoCasuale Caso::Casella(int quale) {
    if (quale == 4) {
        const std::string testo =
            Testo({"9", "17", "2.5", "7.5", "1000", "-1000", "abc", "", "100"});
        const auto estremo = static_cast<Estremo>(Tira(6));
        const bool invio = Tira(2) == 0;
        return [=](auto &chi) { chi.Intervallo(estremo, testo, invio); };
    }
    if (quale == 5) {
        const std::string testo =
            Testo({"0", "0", "0", "30", "-75", "22.5", "90", "x1", "", "22,5", "6e307"});
        const auto asse = static_cast<Asse>(Tira(3));
        const bool invio = Tira(2) == 0;
        return [=](auto &chi) { chi.Angolo(asse, testo, invio); };
    }
    const std::string testo =
        Testo({"8", "8", "30", "2", "-7.6", "200", "2000", "12abc", "", "abc", "0.9"});
    const bool applica = Tira(2) == 0;
    return [=](auto &chi) { chi.Trappola(testo, applica); };
}

PassoCasuale Caso::Voce(int quale) {
    const auto menu = [](const std::string &voce) { return [=](auto &chi) { chi.Menu(voce); }; };
    if (quale == 1) return menu(Testo({"Aggiungi", "Aggiungi", "Rimuovi", "Finestra"}));
    if (quale > 10) return menu(FormTelva.voci[Tira(FormTelva.voci.size())]->NomeControllo());
    const std::string voce =
        Testo({"", "Ottimizza", "ZoomIn", "ZoomIn", "Sposta", "RimTutto", "Inverti"});
    if (voce.empty()) return [](auto &chi) { chi.Esc(); };
    return menu(voce);
}

PassoCasuale Caso::Risposta(const Modello &m) {
    const std::string testo = Elenco();
    if (!m.risposta) return [](auto &chi) { chi.Invio(); };
    return [=](auto &chi) { chi.Elenco(testo); };
}

PassoCasuale Caso::Passo(const Modello &m) {
    const int py = Tira(250), px = Tira(160), qx = Tira(160);
    const std::vector<Pixel> strada = {{px, py}, {qx, 99}, {px, py}};
    if (m.funzione == Modello::kNiente && Tira(2)) {
        const std::string voce = Testo({"Aggiungi", "Aggiungi", "Rimuovi"});
        return [=](auto &chi) { chi.Menu(voce); };
    }
    if (m.risposta && Tira(3) == 0) return Risposta(m);
    const int quale = Tira(22);
    switch (quale) {
    case 2: {
        const int tipo = Una({0, 1, 2, 2, 3, 4});
        return [=](auto &chi) { chi.Tipo(tipo); };
    }
    case 3: return Filtri();
    case 4:
    case 5:
    case 8: return Casella(quale);
    case 6:
    case 7: return Risposta(m);
    case 9: return Vista(m, [=](auto &chi) { chi.Trascina(strada); });
    case 1:
    case 10:
    case 11:
    case 12:
    case 13: return Voce(quale);
    default: break;
    }
    const Punto p = PuntoScelto(m);
    if (quale == 0) return [=](auto &chi) { chi.Muovi(p.x, p.y); };
    return [=](auto &chi) { chi.Clic(p.x, p.y); };
}

} // namespace telva::prove
