#include "modello/Modello.h"

#include <algorithm>
#include <cmath>

namespace telva::prove {
namespace {

constexpr double kUguale = 1e-4; // drawing units
constexpr std::size_t kCandidati = 50;

} // namespace

bool Modello::Meno(double a, double b) {
    if (std::abs(a - b) < 1e-3) salta = true;
    return a < b;
}

bool Modello::InVista(double x, double y) const {
    return x >= scala.sinistra && x <= scala.sinistra + scala.larghezza && y <= scala.alto &&
           y >= scala.alto + scala.altezza;
}

Punto Modello::AlPixel(double x, double y) const {
    if (!modoSposta) return {x, y};
    const double px = std::round((x - scala.sinistra) / scala.larghezza * largo);
    const double py = std::round((y - scala.alto) / scala.altezza * alto);
    return Evento(scala.sinistra + px * scala.larghezza / largo,
                  scala.alto + py * scala.altezza / alto);
}

Punto Modello::Evento(double x, double y) const {
    const double pixel = scala.larghezza / largo;
    const auto evento = [&](double v) {
        const double singola = static_cast<float>(v);
        return std::abs(singola - v) <= pixel / 64 ? singola : v;
    };
    return {evento(x), evento(y)};
}

// --- direct pick

// 0 inside the shell, else -1: sides crossed on the way to the right.
double Modello::DistanzaGuscio(const Elemento &e, double x, double y) {
    const int lati = e.triangolo ? 3 : 4;
    bool dentro = false;
    for (int k = 0; k < lati; ++k) {
        const Punto a = punti[e.punti[k]], b = punti[e.punti[(k + 1) % lati]];
        const double dx = b.x - a.x, dy = b.y - a.y, q = std::max(dx * dx + dy * dy, 1e-9);
        const double s = std::clamp(((x - a.x) * dx + (y - a.y) * dy) / q, 0., 1.);
        Meno(0, std::hypot(x - a.x - s * dx, y - a.y - s * dy)); // on a side it may be either
        if ((a.y > y) != (b.y > y) && x < a.x + (y - a.y) * dx / dy) dentro = !dentro;
    }
    return dentro ? 0 : -1;
}

// How far the element is from the place under the aperture; -1 outside it.
double Modello::Distanza(const Elemento &e, double x, double y) {
    if (e.colore < 1 || e.nome < 1 || !e.attivo || trappola == 0) return -1;
    if (e.punti.size() > 2) return DistanzaGuscio(e, x, y);
    const double raggio = RaggioTrappola();
    const Punto i = punti[e.punti.front()], j = punti[e.punti.back()];
    double distanza = std::hypot(x - i.x, y - i.y);
    if (e.punti.size() == 2) { // a bar: from its line, in the box around it
        const double dx = j.x - i.x, dy = j.y - i.y, lungo = dx * dx + dy * dy;
        if (!Meno(1e-4, lungo)) return -1;
        distanza = std::abs(dx * (y - i.y) - dy * (x - i.x)) / std::sqrt(lungo);
        for (const Punto p : {i, j}) {
            if (!Meno(std::abs(x - p.x) - std::abs(dx), raggio)) return -1;
            if (!Meno(std::abs(y - p.y) - std::abs(dy), raggio)) return -1;
        }
    }
    return Meno(distanza, raggio) ? distanza : -1;
}

// The name of the element that a click takes; 0 for none.
int Modello::Scelto(double x, double y) {
    struct Candidato {
        const Elemento *e;
        double distanza;
    };
    std::vector<Candidato> candidati;
    const std::size_t capacita = tipo == kGusci ? 1 : kCandidati;
    const auto prova = [&](const Elemento &e, const Elemento &toccato) {
        const double d = Distanza(toccato, x, y);
        if (d >= 0 && candidati.size() < capacita) candidati.push_back({&e, d});
    };
    if (tipo == kPareti) return 0;
    for (const Elemento &e : elementi[tipo]) {
        if (tipo != kContinui) prova(e, e);
        for (const int b : e.aste) // a continuous element by each of its bars
            if (b >= 0 && !e.rotto) prova(e, elementi[kAste][b]);
    }
    if (candidati.empty()) return 0;
    if (tipo == kContinui) return candidati.back().e->nome;
    for (const auto &[e, d] : candidati)
        for (const auto &[g, dg] : candidati) // equal, but as sums of other numbers
            if ((tipo == kAste && std::abs(d - dg) < 1e-6 && e->punti != g->punti) ||
                std::abs(d - std::floor(d) - 0.5) < 1e-6)
                salta = true;
    // The nearest first, as the old sorting had it: what is moved back is rounded to whole numbers.
    for (std::size_t giri = candidati.size() * candidati.size(); giri > 0; --giri)
        for (std::size_t k = 1; k < candidati.size(); ++k)
            if (candidati[k - 1].distanza > candidati[k].distanza) {
                std::swap(candidati[k - 1], candidati[k]);
                candidati[k].distanza = std::min(std::nearbyint(candidati[k].distanza), 32767.0);
            }
    for (const Candidato &c : candidati) // rather one that the function changes
        if (c.e->selezionato != (funzione == kAggiungere)) return c.e->nome;
    return candidati[0].e->nome;
}

// --- rectangle

std::vector<Elemento *> Modello::NelRettangolo(double margine) {
    const double w = std::abs(angolo1_.x - angolo0_.x), h = std::abs(angolo1_.y - angolo0_.y);
    const auto dentro = [&](int p) {
        const auto [x, y] = punti[p];
        return std::max(std::abs(x - angolo0_.x), std::abs(x - angolo1_.x)) - w <= margine &&
               std::max(std::abs(y - angolo0_.y), std::abs(y - angolo1_.y)) - h <= margine;
    };
    std::vector<Elemento *> presi;
    Segna([&](const Elemento &e) { return std::ranges::all_of(e.punti, dentro); },
          [&](Elemento &e) { presi.push_back(&e); });
    return presi;
}

void Modello::SelezionaRettangolo() {
    const bool frontale = validi_[0] == "0" && validi_[1] == "0" && validi_[2] == "0";
    if (!frontale && NelRettangolo(0.999) != NelRettangolo(1.001)) salta = true;
    for (Elemento *e : NelRettangolo(1)) e->selezionato = funzione == kAggiungere;
    AggiornaLista();
    RiprendiDiretta();
}

// After an automatic window direct pick goes on.
void Modello::RiprendiDiretta() {
    if (!finestraAutomatica) return;
    finestraAutomatica = false;
    sotto = "Diretta";
    puntatore = Puntatore::Predefinito;
    sottoFunAttiva = "Selezione diretta";
}

// The caption after zoom and pan.
void Modello::Didascalia() {
    static const std::map<std::string, std::string> kTesti = {
        {"Finestra", "Seleziona per finestra"},
        {"Materiale", "Seleziona per materiale"},
        {"Nome", "Seleziona per nome elemento"},
        {"Diretta", "Selezione diretta"}}; // the other lists keep what is shown
    if (sotto == "") AzzeraInput();
    if (const auto t = kTesti.find(sotto); t != kTesti.end()) sottoFunAttiva = t->second;
}

// --- steps

void Modello::Muovi(double x, double y) {
    if (primoAngolo && InVista(x, y)) angolo1_ = {x, y};
    linea1_ = {x, y};
    if (!coordinate) return;
    labCoord = "";
    for (const Elemento &e : elementi[kNodi]) {
        if (!labCoord.empty() || Distanza(e, x, y) < 0) continue;
        const auto &[px, py, pz] = lavoro_.punti[e.punti[0]];
        const auto intero = [](double v) {
            return std::to_string(static_cast<int>(std::floor(v)));
        };
        labCoord = intero(px) + ", " + intero(py) + ", " + intero(pz) + " [N" +
                   std::to_string(e.nome) + "]";
    }
}

void Modello::Clic(double x, double y) {
    const Punto pixel = AlPixel(x, y);
    salta = !InVista(x, y) || x != pixel.x || y != pixel.y;
    ultimoCentrale_ = false;
    Muovi(x, y);
    Premi(x, y);
}

void Modello::ClicDestro(double x, double y) {
    salta = !InVista(x, y);
    ultimoCentrale_ = false;
}

void Modello::DoppioClic() {
    if (ultimoCentrale_) Ottimizza();
}

void Modello::Premi(double x, double y) {
    if (modoSposta && !spostaInCorso) {
        spostaInCorso = lineaSposta = true;
        puntatore = Puntatore::Ridimensiona;
        linea0_ = {x, y};
    } else if (modoSposta && std::max(std::abs(x - linea0_.x), std::abs(y - linea0_.y)) > kUguale) {
        modoSposta = spostaInCorso = lineaSposta = false;
        Trasla(Zoomata() && zoom.HaArea() ? zoom : vista, x - linea0_.x, y - linea0_.y);
        puntatore = sotto == "Finestra" ? Puntatore::Croce : Puntatore::Predefinito;
        Didascalia();
    } else if (!primoAngolo && (sotto == "Finestra" || modoZoom)) {
        primoAngolo = true;
        puntatore = Puntatore::Croce;
        angolo0_ = angolo1_ = {x, y};
    } else if (!primoAngolo && sotto == "Diretta" && funzione != kNiente) {
        const int nome = Scelto(x, y);
        if (nome > 0) return Numeri("Nome", std::to_string(nome));
        finestraAutomatica = true; // nothing there: the click begins a window
        sotto = "Finestra";
        Didascalia();
        Premi(x, y);
    } else if (primoAngolo) {
        SecondoAngolo();
    }
}

void Modello::SecondoAngolo() {
    primoAngolo = false;
    puntatore = Puntatore::Croce;
    if (angolo0_.x == angolo1_.x || angolo0_.y == angolo1_.y) return; // the mode stays
    if (!modoZoom) return SelezionaRettangolo();
    zoom = {std::max(angolo0_.x, angolo1_.x), std::min(angolo0_.x, angolo1_.x),
            std::max(angolo0_.y, angolo1_.y), std::min(angolo0_.y, angolo1_.y)};
    modoZoom = false;
    puntatore = sotto == "Finestra" ? Puntatore::Croce : Puntatore::Predefinito;
    Ridisegna();
    Didascalia();
}

void Modello::Trascina(const std::vector<Pixel> &pixel) {
    ultimoCentrale_ = true;
    lineaSposta = spostaInCorso;
    const auto [px, py] = pixel[0];
    linea0_ = {scala.sinistra + px * scala.larghezza / largo,
               scala.alto + py * scala.altezza / alto};
    const Riquadro da = vista;
    const double quasi = 1e-3 * scala.larghezza / largo; // the steps are whole pixels
    for (std::size_t n = 1; n < pixel.size(); ++n) {
        const auto [qx, qy] = pixel[n];
        const double dx = (qx - px) * scala.larghezza / largo;
        const double dy = (qy - py) * scala.altezza / alto;
        const bool altrove = std::abs(da.maxX - dx - zoom.maxX) > quasi ||
                             std::abs(da.maxY - dy - zoom.maxY) > quasi ||
                             std::abs(da.minX - dx - zoom.minX) > quasi ||
                             std::abs(da.minY - dy - zoom.minY) > quasi;
        if (altrove && (dx != 0 || dy != 0 || Zoomata())) Trasla(da, dx, dy);
        Muovi(scala.sinistra + qx * scala.larghezza / largo,
              scala.alto + qy * scala.altezza / alto);
    }
}

} // namespace telva::prove
