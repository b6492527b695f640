#include "Sessione.h"

#include "ui/comandi.h"

#include <algorithm>
#include <utility>

namespace telva::prove {

std::string SenzaSegno(std::string didascalia) {
    std::erase(didascalia, '&');
    return didascalia;
}

namespace {

std::string Lettera(const std::string &didascalia) {
    const auto segno = didascalia.find('&');
    return segno == std::string::npos ? "" : didascalia.substr(segno + 1, 1);
}

// The row of the program's own table of commands that opens a menu.
const Comando &Cerca(const std::string &menu) {
    const auto trovato = std::ranges::find(
        TabellaComandi(), menu, [](const Comando &c) { return SenzaSegno(c.didascalia); });
    if (trovato == TabellaComandi().end()) Fallisci("no menu '" + menu + "'");
    return *trovato;
}

// A menu opens with its first item chosen.
std::string Raggiungi(const std::string &menu, const std::string &nome) {
    std::string tasti;
    const Comando &capo = Cerca(menu), *const fine = std::to_address(TabellaComandi().end());
    for (const Comando *c = &capo + 1; c != fine && c->livello > capo.livello; ++c) {
        if (c->livello > capo.livello + 1) continue; // of a menu that opens out of this one
        if (SenzaSegno(c->didascalia) == nome)
            return Lettera(c->didascalia).empty() ? tasti + "Invio" : Lettera(c->didascalia);
        tasti += "Giu ";
    }
    Fallisci("no item '" + nome + "' in menu '" + menu + "'");
}

const std::map<int, std::uint32_t> kColoriDeiNodi{
    {1, 0xFFFFFF}, {2, 0x0000C0}, {3, 0xFF0000}, {4, 0x00FF00}, {20, 0xFF00FF}};

std::string Testo(const POINT &p) { return std::to_string(p.x) + "," + std::to_string(p.y); }

bool Vicini(const POINT &a, const POINT &b) {
    return std::abs(a.x - b.x) <= 2 && std::abs(a.y - b.y) <= 2;
}

POINT PostoDelBottone(const Programma &p, const std::string &suggerimento) {
    int posto = 0; // the gaps count
    for (const Comando &c : TabellaComandi()) {
        if (!c.chiave) continue;
        if (c.nuovoGruppo) ++posto;
        if (c.suggerimento == suggerimento) return p.CentroBottone(p.Controllo("Toolbar1"), posto);
        ++posto;
    }
    Fallisci("no button '" + suggerimento + "'");
}

// Makes the job; the argument that opens it.
std::wstring Prepara(const Ambiente &amb, Genere genere, const std::string &selezione,
                     double lontano) {
    ScriviIngresso(LavoroPiccolo(amb, "prova1", lontano), "Prova", selezione,
                   static_cast<int>(genere));
    return amb.Argomento("LAVORO=prova1|");
}

} // namespace

UINT NumeroDi(const VoceMenu &voce) {
    constexpr UINT kPrimo = 1000;
    return kPrimo +
           static_cast<UINT>(std::ranges::find(FormTelva.voci, &voce) - FormTelva.voci.begin());
}

void ChiudiRiquadro(Programma &p, const RiquadroAtteso &atteso) {
    const auto visto = p.ChiudiRiquadro();
    UGUALE(visto.titolo, atteso.titolo);
    UGUALE(visto.testo, atteso.testo);
    UGUALE(visto.icona, atteso.icona);
}

Sessione::Sessione(const Ambiente &amb, Genere genere, const std::string &selezione, double lontano)
    : Programma(amb.telva, Prepara(amb, genere, selezione, lontano)),
      lavoro(amb.Lavori() / "prova1"), finestra(Principale()), disegno(Controllo("Disegno")) {
    Dimensiona(finestra, GetSystemMetrics(SM_CXSCREEN) * 11 / 16,
               GetSystemMetrics(SM_CYSCREEN) * 4 / 5);
    // The nodes are looked for in the new picture: painted at once, and on the screen by the second
    // time that the program has nothing left to do.
    RedrawWindow(disegno, nullptr, nullptr, RDW_UPDATENOW);
    Smaltisci(finestra);
    Smaltisci(finestra);
    RECT r{};
    GetClientRect(disegno, &r);
    Aspetta("the picture at its new size", [&] {
        return Pixel(disegno, {r.right - 3, r.bottom - 3}) == 0 &&
               Pixel(Controllo("FrameSel"), {180, 40}) != 0;
    });
    for (const auto &nodo : kColoriDeiNodi) {
        Aspetta("node " + std::to_string(nodo.first), [&] { return SiVede(nodo.first); });
        nodi_[nodo.first] = *DoveStaNodo(nodo.first);
    }
}

void Sessione::Scegli(const std::string &menu, const std::string &voce, const std::string &sotto) {
    const std::string tasti = Raggiungi(menu, voce);
    Menu("Alt+" + Lettera(Cerca(menu).didascalia),
         sotto.empty() ? tasti : tasti + " " + Raggiungi(voce, sotto));
}

void Sessione::PremiBottone(const std::string &suggerimento) {
    Clic(Controllo("Toolbar1"), PostoDelBottone(*this, suggerimento));
}

void Sessione::Scegli(Genere genere) {
    Clic("OptElem(" + std::to_string(static_cast<int>(genere)) + ")");
}

HWND Sessione::ApriTrappola() {
    Scegli("Opzioni", "Trappola...");
    return Dialogo("Opzioni");
}

HWND Sessione::ApriOpzioni() {
    Scegli("Opzioni", "Opzioni...");
    return Dialogo("Opzioni di rappresentazione");
}

void Sessione::VaiA(const std::string &controllo) {
    for (int passi = 0; passi < 60 && !HaFuoco(controllo); ++passi) {
        HWND prima = Fuoco();
        Premi("Tab");
        Aspetta("Tab to move the focus", [&] { return Fuoco() != prima; });
    }
    Passo("now at " + controllo);
    VERIFICA(HaFuoco(controllo));
}

void Sessione::Spazio(const std::string &controllo) {
    VaiA(controllo);
    Premi("Spazio");
}

void Sessione::Riscrivi(const std::string &casella, const std::string &testo) {
    if (casella != "Risposta") VaiA(casella); // the answer box takes the focus by itself
    Aspetta("the focus on " + casella, [&] { return HaFuoco(casella); });
    for (const char *tasti : {"Fine", "Shift+Inizio", "Canc"}) Premi(tasti);
    TestoDiventa(casella, "");
    Scrivi(casella, testo);
}

void Sessione::Invia(const std::string &casella, const std::string &testo) {
    Riscrivi(casella, testo);
    Premi("Invio");
}

void Sessione::TestoDiventa(const std::string &controllo, const std::string &atteso) {
    Diventa(
        *this, [&] { return Testo(controllo); }, atteso, controllo.c_str());
}

void Sessione::NienteInCorso() {
    FunzioneDiventa("");
    SottoFunzioneDiventa("");
}

void Sessione::NodoStaIn(int nome, const Luogo &luogo) {
    const POINT atteso = Punto(luogo);
    POINT visto{};
    Aspetta(
        "node " + std::to_string(nome) + " at " + prove::Testo(atteso),
        [&] {
            return Vicini(visto = DoveStaNodo(nome).value_or(POINT{-1, -1}), atteso);
        },
        [&] { return prove::Testo(visto); });
}

void Sessione::BottoneSuggerisce(const std::string &bottone, const std::string &atteso) {
    PuntaInDisparte();
    DIVENTA(*this, Suggerimento(), "");
    Punta(Controllo("Toolbar1"), PostoDelBottone(*this, bottone));
    DIVENTA(*this, Suggerimento(), atteso);
}

std::vector<std::uint32_t> Sessione::Vista() const {
    RECT zona{};
    GetWindowRect(Controllo(fotoDi_), &zona);
    return Schermo(&zona).pixel;
}

// What was drawn reaches the screen a little later, so the picture has to rest for a while.
void Sessione::Fotografa(const std::string &controllo) {
    constexpr ULONGLONG kFermaMs = 100;
    ULONGLONG da = 0;
    fotoDi_ = controllo;
    Aspetta("a picture at rest", [&] {
        if (auto ora = Vista(); da == 0 || ora != std::exchange(foto_, ora)) da = GetTickCount64();
        return GetTickCount64() - da >= kFermaMs;
    });
}

void Sessione::Confronta(bool uguale) const {
    Aspetta(fotoDi_ + (uguale ? " as in" : " other than") + " the picture taken",
            [&] { return (Vista() == foto_) == uguale; });
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
    const POINT a = nodi_.at(luogo.nodo), b = nodi_.at(luogo.altro);
    return {(a.x + b.x) / 2 + luogo.destra, (a.y + b.y) / 2 + luogo.giu};
}

} // namespace telva::prove
