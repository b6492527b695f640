#include "modello/Modello.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>

namespace telva::prove {
namespace {

constexpr double kPi = 3.14159265359;
constexpr double kUguale = 1e-4;    // drawing units: nearer than this is the same
constexpr double kZoomMinimo = 0.1; // drawing units
constexpr int kCritica = 0;
constexpr int kSinistra = 37, kSu = 38, kDestra = 39, kGiu = 40; // keys
constexpr int kPiu = 187, kMeno = 189, kPiuCifre = 107, kMenoCifre = 109;
constexpr int kUltimaAsta = 20000; // place in the table

double Numero(std::string testo) { // typed, the comma for a point
    std::ranges::replace(testo, ',', '.');
    return std::strtod(testo.c_str(), nullptr);
}

Elemento DelNodo(const LavoroProva::Nodo &n) {
    return {.nome = n.nome,
            .colore = n.colore,
            .tipo = n.tipo,
            .schede = {{"SchVincolo", n.vincolo}},
            .punti = {n.punto}};
}

Elemento DellAsta(const LavoroProva::Asta &a, const LavoroProva &lavoro) {
    const bool scheda = a.sezione > 0 && a.sezione <= std::ssize(lavoro.sezioni);
    return {.nome = a.nome,
            .colore = a.colore,
            .tipo = a.tipo,
            .schede = {{"Materiale", scheda ? lavoro.sezioni[a.sezione - 1] : 0},
                       {"SchSezione", a.sezione},
                       {"SchOrientamento", a.orientamento},
                       {"SchSvincolo", a.svincolo}},
            .punti = {lavoro.nodi[a.i].punto, lavoro.nodi[a.j].punto}};
}

Elemento DelGuscio(const LavoroProva::Guscio &g, const LavoroProva &lavoro) {
    const bool scheda = g.spessore > 0 && g.spessore <= std::ssize(lavoro.spessori);
    const LavoroProva::Spessore s =
        scheda ? lavoro.spessori[g.spessore - 1] : LavoroProva::Spessore{0, 0};
    Elemento e{.nome = g.nome,
               .colore = g.colore,
               .tipo = g.tratto,
               .schede = {{"Materiale", s.materiale}, {"SchSpessore", g.spessore}},
               .sottile = scheda && s.valore < 1,
               .triangolo = g.nodi[3] <= 0}; // node 0 as a corner is drawn, but not picked
    for (const int nodo : g.nodi)
        if (nodo >= 0) e.punti.push_back(lavoro.nodi[nodo].punto);
    return e;
}

Elemento Continuo(const LavoroProva::ElCont &c, const std::vector<Elemento> &aste) {
    Elemento e{.nome = c.numero};
    for (const int nome : c.aste) { // a name that no bar has is taken for a place
        const auto asta = std::ranges::find(aste, nome, &Elemento::nome);
        const auto posto = asta == aste.end() ? nome : asta - aste.begin();
        e.aste.push_back(posto < std::ssize(aste) ? static_cast<int>(posto) : -1);
        e.rotto = e.rotto || posto < 0 || posto > kUltimaAsta;
    }
    return e;
}

} // namespace

Modello::Modello(const LavoroProva &lavoro) : punti(lavoro.punti.size()), lavoro_(lavoro) {
    for (const auto &n : lavoro.nodi) elementi[kNodi].push_back(DelNodo(n));
    for (const auto &a : lavoro.aste) elementi[kAste].push_back(DellAsta(a, lavoro));
    for (const auto &g : lavoro.gusci) elementi[kGusci].push_back(DelGuscio(g, lavoro));
    for (const auto &c : lavoro.elementi)
        elementi[kContinui].push_back(Continuo(c, elementi[kAste]));
}

void Modello::Dice(const std::string &testo, const char *titolo, int gravita) {
    messaggi += titolo + std::to_string(gravita) + testo;
}

void Modello::Avvio(const Ingresso &ingresso) {
    for (int asse = 0; asse < 3; ++asse) InteroIntervallo(asse);
    Ottimizza();
    tipo = richiesto_ = ingresso.tipo;
    funzione = kAggiungere;
    if (ingresso.lista == "0")
        Attributo("Colore", kOgniColore);
    else if (!ingresso.lista.empty())
        Numeri("Nome", ingresso.lista); // a list that is refused selects nothing
    funzione = kNiente;
}

// --- the view

// The whole extent of the nodes into an interval, in whole numbers.
void Modello::InteroIntervallo(int asse) {
    const auto valore = [&](const auto &n) { return lavoro_.punti[n.punto][asse]; };
    const auto [minimo, massimo] = std::ranges::minmax(lavoro_.nodi, {}, valore);
    const auto intero = [&](const auto &n) {
        return std::to_string(static_cast<int>(std::floor(valore(n) + 0.5)));
    };
    intervalli[2 * asse] = intero(minimo);
    intervalli[2 * asse + 1] = intero(massimo);
}

// False when an angle is no number: it goes back to what it was, and the picture stays.
bool Modello::Proietta() {
    bool errore = false;
    for (int k = 0; k < 3; ++k) {
        if (!angoli[k].empty() && angoli[k] != "x1" && angoli[k] != "6e307") continue;
        Dice("Angolo di vista non valido: " + angoli[k] + " (usare cifre, ad esempio 22.5)",
             "ERRORE", kCritica);
        angoli[k] = validi_[k];
        errore = true;
    }
    if (errore) return false;
    validi_ = angoli;
    const auto radianti = [&](int k) { return Numero(validi_[k]) * kPi / 180; };
    const double a = radianti(0), b = -radianti(1), c = radianti(2);
    for (std::size_t n = 0; n < punti.size(); ++n) {
        const auto &[x, y, z] = lavoro_.punti[n];
        punti[n].x = cos(b) * cos(c) * x - sin(b) * y + cos(b) * sin(c) * z;
        punti[n].y = (sin(a) * sin(b) * cos(c) - cos(a) * sin(c)) * x + sin(a) * cos(b) * y +
                     (sin(a) * sin(b) * sin(c) + cos(a) * cos(c)) * z;
    }
    return true;
}

// The intervals are whole numbers: half a unit more on either side.
bool Modello::Giusto(const std::string &intervallo) {
    return !intervallo.empty() && intervallo != "abc";
}

bool Modello::Dentro(const Elemento &e) const {
    for (const int p : e.punti)
        for (int asse = 0; asse < 3; ++asse) {
            const double v = lavoro_.punti[p][asse];
            if (Numero(ultimi_[2 * asse]) - v > 0.5) return false;
            if (v - Numero(ultimi_[2 * asse + 1]) > 0.5) return false;
        }
    return true;
}

bool Modello::Disegnato(const Elemento &e) const {
    if (e.rotto) return false;
    const auto asta = [&](int b) { return b >= 0 && Disegnato(elementi[kAste][b]); };
    if (!e.aste.empty()) return std::ranges::any_of(e.aste, asta);
    return e.nome > 0 && e.colore < kColoreNascosto && e.attivo && !e.sottile;
}

bool Modello::Zoomata() const { return std::abs(zoom.maxX - zoom.minX) >= kUguale; }

bool Modello::Piccola(const Riquadro &r) {
    return std::min(std::abs(r.maxX - r.minX), std::abs(r.maxY - r.minY)) < kZoomMinimo;
}

// Around what is drawn and active.
Riquadro Modello::Mostrati() const {
    // The point that is there from the beginning; while the first node is hidden, none far out.
    const auto vicino = [](const auto &punto) {
        return std::ranges::all_of(punto, [](double v) { return std::abs(v) < 5000; });
    };
    std::size_t primo = 0;
    if (elementi[kNodi][0].colore >= kColoreNascosto) {
        const auto contato = std::ranges::find_if(lavoro_.punti, vicino);
        if (contato != lavoro_.punti.end()) primo = contato - lavoro_.punti.begin();
    }
    Riquadro r{punti[primo].x, punti[primo].x, punti[primo].y, punti[primo].y};
    for (const auto &tabella : elementi)
        for (const Elemento &e : tabella) {
            if (!e.aste.empty() || !Disegnato(e)) continue;
            for (const int p : e.punti) {
                r.maxX = std::max(r.maxX, punti[p].x);
                r.minX = std::min(r.minX, punti[p].x);
                r.maxY = std::max(r.maxY, punti[p].y);
                r.minY = std::min(r.minY, punti[p].y);
            }
        }
    return r;
}

void Modello::Inquadra(const Riquadro &finestra) {
    auto [maxX, minX, maxY, minY] = finestra;
    // A tenth more on either side, the second one of what the first has widened.
    maxX += 0.1 * std::abs(maxX - minX);
    minX -= 0.1 * std::abs(maxX - minX);
    maxY += 0.1 * std::abs(maxY - minY);
    minY -= 0.1 * std::abs(maxY - minY);
    const double r = std::min(largo / std::abs(maxX - minX), alto / std::abs(maxY - minY));
    scala = {(maxX + minX - largo / r) / 2, (maxY + minY + alto / r) / 2, largo / r, -alto / r};
    largoScala_ = largo;
    altoScala_ = alto;
    vista = finestra;
    if (Piccola(finestra)) vista = Attorno((maxX + minX) / 2, (maxY + minY) / 2, 1 / r);
}

// The window whose margins reach to the edges of the box.
Riquadro Modello::Attorno(double x, double y, double unita) const {
    const double w = unita * largo, h = unita * alto;
    return {x + w / 2 - 0.1 * w / 1.21, x - w / 2 + 0.11 * w / 1.21, y + h / 2 - 0.1 * h / 1.21,
            y - h / 2 + 0.11 * h / 1.21};
}

void Modello::InquadraAttorno(double x, double y, double unita) { Inquadra(Attorno(x, y, unita)); }

// Without area: its length takes two thirds of the smaller side.
void Modello::InquadraLunghezza(const Riquadro &r) {
    const double lunghezza = std::max({r.maxX - r.minX, r.maxY - r.minY, 1.0});
    InquadraAttorno((r.maxX + r.minX) / 2, (r.maxY + r.minY) / 2,
                    lunghezza * 1.5 / std::min(largo, alto));
}

void Modello::ControllaIntervalli() {
    for (int k = 0; k < 6; ++k) {
        if (Giusto(intervalli[k])) continue;
        Dice("Intervallo di coordinate non valido: " + intervalli[k], "ERRORE", kCritica);
        intervalli[k] = ultimi_[k];
    }
}

void Modello::Adatta() {
    for (int k = 0; k < 6; ++k) // what is not yet told does not count
        if (Giusto(intervalli[k])) ultimi_[k] = intervalli[k];
    static constexpr Filtro kDelTipo[] = {Filtro::Nodi, Filtro::Aste, Filtro::Gusci};
    const auto mostra = [&](Filtro filtro) { return !nascosti_.contains(filtro); };
    for (int t = kNodi; t <= kGusci; ++t)
        for (Elemento &e : elementi[t])
            e.attivo = Dentro(e) && mostra(kDelTipo[t]) &&
                       mostra(e.selezionato ? Filtro::Selezionati : Filtro::NonSelezionati);
    const Riquadro r = Zoomata() ? zoom : Mostrati();
    if (r.HaArea())
        Inquadra(r);
    else if (largoScala_ == 0)
        InquadraLunghezza(r);
    else if (largo != largoScala_ || alto != altoScala_) // more or less of the same
        InquadraAttorno(scala.sinistra + scala.larghezza / 2, scala.alto + scala.altezza / 2,
                        scala.larghezza / largoScala_);
}

void Modello::Ridisegna() {
    Proietta();
    ControllaIntervalli();
    Adatta();
    AggiornaLista();
}

void Modello::Ottimizza() {
    if (!Proietta()) return;
    zoom = {};
    ControllaIntervalli();
    Adatta();
    const Riquadro r = Mostrati();
    if (!r.HaArea() && !(InVista(r.maxX, r.maxY) && InVista(r.minX, r.minY))) InquadraLunghezza(r);
}

void Modello::Trasla(const Riquadro &da, double dx, double dy) {
    zoom = {da.maxX - dx, da.minX - dx, da.maxY - dy, da.minY - dy};
    Ridisegna();
}

// --- steps of the view

void Modello::Rotella(int passi) {
    if (Piccola(zoom)) zoom = vista;
    const double dx = (zoom.maxX - zoom.minX) * passi * 0.1;
    const double dy = (zoom.maxY - zoom.minY) * passi * 0.1;
    zoom = {zoom.maxX - dx, zoom.minX + dx, zoom.maxY - dy, zoom.minY + dy};
    if (!Piccola(zoom)) Ridisegna();
}

// An arrow: a tenth of the box, in whole pixels, towards what lies there. + and - as the wheel.
void Modello::Tasto(int codice) {
    static const std::map<int, Punto> kFrecce = {
        {kSinistra, {1, 0}}, {kSu, {0, 1}}, {kDestra, {-1, 0}}, {kGiu, {0, -1}}};
    const double dx = std::floor(largo / 10) * scala.larghezza / largo;
    const double dy = std::floor(alto / 10) * scala.altezza / alto;
    const auto freccia = kFrecce.find(codice);
    if (freccia != kFrecce.end())
        return Trasla(vista, dx * freccia->second.x, dy * freccia->second.y);
    if (codice == kPiu || codice == kPiuCifre) Rotella(1);
    if (codice == kMeno || codice == kMenoCifre) Rotella(-1);
}

void Modello::Ridimensiona(double, double) { Adatta(); }

void Modello::Mostra(Filtro filtro) {
    if (nascosti_.erase(filtro) == 0) nascosti_.insert(filtro);
    Ridisegna();
}

void Modello::Tutto(Asse asse) {
    InteroIntervallo(static_cast<int>(asse));
    Ridisegna();
}

void Modello::Intervallo(Estremo estremo, const std::string &testo, bool invio) {
    intervalli[static_cast<std::size_t>(estremo)] = testo;
    if (invio) Ridisegna();
}

void Modello::Angolo(Asse asse, const std::string &testo, bool invio) {
    angoli[static_cast<std::size_t>(asse)] = testo;
    if (invio) Ridisegna();
}

} // namespace telva::prove
