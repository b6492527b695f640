#include "Sessione.h"

#include "VociMenu.h"

#include <utility>

namespace telva::prove {

namespace {

// Places of the tool-bar buttons, separators counted, by the tips they show.
const std::map<std::string, int> kBottoni{{"Aggiorna ed esci", 0},
                                          {"Esci", 1},
                                          {"Ottimizza", 3},
                                          {"Zoom", 4},
                                          {"Sposta", 5},
                                          {"Ridisegna", 6},
                                          {"Aggiungi selezione", 8},
                                          {"Rimuovi selezione", 9},
                                          {"Rimuovi tutto", 10},
                                          {"Inverti selezione", 11},
                                          {"Interrompi", 12},
                                          {"Attiva o disattiva la barra laterale", 14}};

const std::map<int, std::uint32_t> kColoriDeiNodi{
    {1, 0xFFFFFF}, {2, 0x0000C0}, {3, 0xFF0000}, {4, 0x00FF00}, {20, 0xFF00FF}};

std::string Testo(const POINT &p) { return std::to_string(p.x) + "," + std::to_string(p.y); }

bool Vicini(const POINT &a, const POINT &b) {
    return std::abs(a.x - b.x) <= 2 && std::abs(a.y - b.y) <= 2;
}

HWND ControlloColFuoco(HWND finestra) {
    GUITHREADINFO filo{};
    filo.cbSize = sizeof filo;
    GetGUIThreadInfo(GetWindowThreadProcessId(finestra, nullptr), &filo);
    return filo.hwndFocus;
}

POINT PostoDelBottone(const Programma &p, const std::string &suggerimento) {
    return p.CentroBottone(p.Controllo("Toolbar1"), kBottoni.at(suggerimento));
}

std::string NomeDi(Genere genere) {
    return "OptElem(" + std::to_string(static_cast<int>(genere)) + ")";
}

} // namespace

std::string Luogo::Testo() const {
    auto testo = "node " + std::to_string(primo);
    if (modo == Modo::Mezzo)
        testo = "the middle of nodes " + std::to_string(primo) + " and " + std::to_string(secondo);
    if (modo == Modo::Incrocio)
        testo = "below " + testo + " at the height of node " + std::to_string(secondo);
    if (destra || giu) testo += " by " + std::to_string(destra) + "," + std::to_string(giu);
    return testo;
}

void ChiudiRiquadro(Programma &p, const RiquadroAtteso &atteso) {
    Annota("close the box '" + atteso.testo + "'");
    const auto visto = p.ChiudiRiquadro();
    UGUALE(visto.titolo, atteso.titolo);
    UGUALE(visto.testo, atteso.testo);
    UGUALE(visto.icona, atteso.icona);
}

Sessione::Sessione(const Ambiente &amb, Genere genere, const std::string &selezione)
    : lavoro(LavoroPiccolo(amb)),
      p((ScriviIngresso(lavoro, "Prova", selezione, static_cast<int>(genere)), amb.telva),
        amb.Argomento("LAVORO=prova1|")),
      finestra(p.Principale()), disegno(p.Controllo("Disegno")) {
    Annota("start on the small job");
    p.Dimensiona(finestra, GetSystemMetrics(SM_CXSCREEN) * 11 / 16,
                 GetSystemMetrics(SM_CYSCREEN) * 4 / 5);
    // The nodes are looked for in the new picture: painted at once, and on the screen by the second
    // time that the program has nothing left to do.
    RedrawWindow(disegno, nullptr, nullptr, RDW_UPDATENOW);
    p.Smaltisci(finestra);
    p.Smaltisci(finestra);
    RECT r{};
    GetClientRect(disegno, &r);
    p.Aspetta("the picture at its new size", [&] {
        return p.Pixel(disegno, {r.right - 3, r.bottom - 3}) == 0 &&
               p.Pixel(p.Controllo("FrameSel"), {180, 40}) != 0;
    });
    for (const auto &[nome, colore] : kColoriDeiNodi)
        p.Aspetta("node " + std::to_string(nome), [&, quale = nome] {
            const auto punto = DoveStaNodo(quale);
            if (punto) nodi_[quale] = *punto;
            return punto.has_value();
        });
}

void Sessione::PremiUno(const std::string &tasti) {
    Annota("press " + tasti);
    p.Premi(tasti);
}

void Sessione::Digita(const std::string &testo) {
    Annota("type '" + testo + "'");
    p.Digita(testo);
}

void Sessione::Menu(const std::string &menu, const std::string &voce, const std::string &sotto) {
    Annota("menu " + menu + " > " + voce + (sotto.empty() ? "" : " > " + sotto));
    const auto tasti = TastiDi(menu, voce, sotto);
    p.Menu(tasti.apri, tasti.voce);
}

void Sessione::MenuConTasti(const std::string &apri, const std::string &tasti) {
    Annota("menu of " + apri + ", keys " + tasti);
    p.Menu(apri, tasti);
}

void Sessione::PremiBottone(const std::string &suggerimento) {
    Annota("tool-bar button " + suggerimento);
    p.Clic(p.Controllo("Toolbar1"), PostoDelBottone(p, suggerimento));
}

void Sessione::Scegli(Genere genere) { Clic(NomeDi(genere)); }

void Sessione::Clic(const Luogo &luogo, Bottone bottone, int volte) {
    Annota((volte == 2 ? "double click at " : "click at ") + luogo.Testo());
    p.Clic(disegno, Punto(luogo), bottone, volte);
}

void Sessione::Clic(const std::string &controllo) {
    Annota("click " + controllo);
    p.Clic(controllo);
}

void Sessione::Punta(const Luogo &luogo) {
    Annota("point at " + luogo.Testo());
    p.Punta(disegno, Punto(luogo));
}

void Sessione::PuntaInDisparte() { p.Punta(disegno, {5, 5}); }

void Sessione::TrascinaColMedio(const Luogo &da, const Luogo &a,
                                const std::function<void()> &inMezzo) {
    Annota("drag with the middle button from " + da.Testo() + " to " + a.Testo());
    p.Trascina(disegno, Punto(da), Punto(a), Bottone::Medio, inMezzo);
}

void Sessione::Rotella(int scatti) {
    Annota("turn the wheel by " + std::to_string(scatti));
    p.Rotella(disegno, Punto(Vuoto()), scatti);
}

void Sessione::Dimensiona(int larghezza, int altezza) {
    Annota("size " + std::to_string(larghezza) + "x" + std::to_string(altezza));
    p.Dimensiona(finestra, larghezza, altezza);
}

void Sessione::VaiA(const std::string &controllo) {
    Annota("go to " + controllo + " by Tab");
    for (int passi = 0; passi < 60 && !p.HaFuoco(controllo); ++passi) {
        HWND prima = ControlloColFuoco(finestra);
        p.Premi("Tab");
        p.Aspetta("Tab to move the focus", [&] { return ControlloColFuoco(finestra) != prima; });
    }
    VERIFICA(p.HaFuoco(controllo));
}

void Sessione::Spazio(const std::string &controllo) {
    VaiA(controllo);
    Premi("Spazio");
}

void Sessione::Riscrivi(const std::string &casella, const std::string &testo) {
    if (casella != "Risposta") VaiA(casella); // the answer box takes the focus by itself
    Annota("write '" + testo + "' in " + casella);
    p.Aspetta("the focus on " + casella, [&] { return p.HaFuoco(casella); });
    for (const char *tasti : {"Fine", "Shift+Inizio", "Canc"}) p.Premi(tasti);
    DIVENTA(p, p.Testo(casella), "");
    p.Scrivi(casella, testo);
}

void Sessione::Rispondi(const std::string &testo) {
    Riscrivi("Risposta", testo);
    Premi("Invio");
}

void Sessione::TestoDiventa(const std::string &controllo, const std::string &atteso) {
    Diventa(
        p, [&] { return p.Testo(controllo); }, atteso, controllo.c_str());
}

void Sessione::NienteInCorso() {
    FunzioneDiventa("");
    SottoFunzioneDiventa("");
}

void Sessione::Abilitato(const std::string &controllo, bool atteso) {
    Diventa(
        p, [&] { return p.Abilitato(controllo); }, atteso, (controllo + " enabled").c_str());
}

void Sessione::Visibile(const std::string &controllo, bool atteso) {
    Diventa(
        p, [&] { return p.Visibile(controllo); }, atteso, (controllo + " visible").c_str());
}

void Sessione::Spuntato(const std::string &controllo, bool atteso) {
    Diventa(
        p, [&] { return p.Spuntato(controllo); }, atteso, (controllo + " ticked").c_str());
}

void Sessione::SiVede(int nodo, bool atteso) {
    Diventa(
        p, [&] { return DoveStaNodo(nodo).has_value(); }, atteso,
        ("node " + std::to_string(nodo) + " seen").c_str());
}

void Sessione::NodoStaIn(int nome, const Luogo &luogo) {
    const POINT atteso = Punto(luogo);
    POINT visto{};
    p.Aspetta(
        "node " + std::to_string(nome) + " at " + Testo(atteso),
        [&] {
            return Vicini(visto = DoveStaNodo(nome).value_or(POINT{-1, -1}), atteso);
        },
        [&] { return Testo(visto); });
    VERIFICA(Vicini(visto, atteso));
}

void Sessione::BottoneSuggerisce(const std::string &bottone, const std::string &atteso) {
    Annota("rest on the tool-bar button " + bottone);
    PuntaInDisparte();
    DIVENTA(p, p.Suggerimento(), "");
    p.Punta(p.Controllo("Toolbar1"), PostoDelBottone(p, bottone));
    DIVENTA(p, p.Suggerimento(), atteso);
}

void Sessione::ChiudiRiquadro(const RiquadroAtteso &atteso) { prove::ChiudiRiquadro(p, atteso); }

std::vector<std::uint32_t> Sessione::Vista() const {
    RECT zona{};
    GetWindowRect(p.Controllo(fotoDi_), &zona);
    return Schermo(&zona).pixel;
}

// What was drawn reaches the screen a little later, so the picture has to rest for a while.
void Sessione::Fotografa(const std::string &controllo) {
    Annota("picture of " + controllo);
    constexpr ULONGLONG fermaMs = 100;
    ULONGLONG da = 0;
    fotoDi_ = controllo;
    p.Aspetta("a picture at rest", [&] {
        if (auto ora = Vista(); da == 0 || ora != std::exchange(foto_, ora)) da = GetTickCount64();
        return GetTickCount64() - da >= fermaMs;
    });
}

void Sessione::Confronta(bool uguale) const {
    p.Aspetta(fotoDi_ + (uguale ? " as in" : " other than") + " the picture taken",
              [&] { return (Vista() == foto_) == uguale; });
    VERIFICA(true);
}

std::optional<POINT> Sessione::DoveStaNodo(int nome) const {
    const auto colore = kColoriDeiNodi.at(nome);
    RECT zona{}, trovato{};
    GetWindowRect(disegno, &zona);
    const auto vista = Schermo(&zona);
    const auto larghezza = static_cast<std::size_t>(vista.larghezza);
    for (std::size_t i = 0; i < vista.pixel.size(); ++i)
        if (vista.pixel[i] == colore) {
            const auto x = static_cast<LONG>(i % larghezza), y = static_cast<LONG>(i / larghezza);
            const RECT punto{x, y, x + 1, y + 1};
            UnionRect(&trovato, &trovato, &punto);
        }
    if (IsRectEmpty(&trovato)) return std::nullopt;
    return POINT{(trovato.left + trovato.right - 1) / 2, (trovato.top + trovato.bottom - 1) / 2};
}

POINT Sessione::Punto(const Luogo &luogo) const {
    const POINT a = nodi_.at(luogo.primo), b = nodi_.at(luogo.secondo);
    const POINT base = luogo.modo == Luogo::Modo::Mezzo ? POINT{(a.x + b.x) / 2, (a.y + b.y) / 2}
                                                        : POINT{a.x, b.y};
    return {base.x + luogo.destra, base.y + luogo.giu};
}

HWND Sessione::AttendiDialogo(const std::string &titolo) { return p.Dialogo(titolo); }

void Sessione::AttendiFinestra() const {
    p.Aspetta("the main window to be enabled", [&] { return IsWindowEnabled(finestra); });
}

} // namespace telva::prove
