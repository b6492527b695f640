#include "LavoriProva.h"

#include <cctype>
#include <utility>

namespace telva::prove {

namespace fs = std::filesystem;

fs::path LavoroPiccolo(const Ambiente &amb, const std::string &codice) {
    const auto cartella = amb.Lavori() / codice;
    fs::remove_all(cartella);
    std::string gusci = "8\n", sezioni = "3\n";
    for (int k = 1; k <= 8; ++k) // hatch k, thickness cards 1 and 2 by turns; the last a triangle
        gusci += (k < 8 ? "0 1 4 2\n" : "2 3 4 -1\n") + std::to_string(k) + ' ' +
                 std::to_string(30 + k) + (k % 2 ? " 1 0 6\n" : " 2 0 6\n");
    ScriviFile(cartella / "STRUTTUR.STR",
               "Release 4.0\n5\n0,0,0\n400,0,0\n0,0,300\n400,0,300\n200,0,450\n"
               "5\n0 0 1\n1 1\n1 1 2\n2 1\n2 2 3\n3 0\n3 3 4\n4 2\n4 0 7\n20 0\n"
               "5\n0,2,0,8\n7 1 0 1 0 0\n1,3,1,8\n8 2 3 1 0 0\n2,4,2,9\n9 1 0 2 0 0\n"
               "3,4,4,9\n12 2 3 2 0 0\n0,1,3,5\n14 3 0 0 0 0\n" +
                   gusci + "0\n0\n0\n0\n");
    for (const char *testa : {"1 0 5", "2 0 6", "3 0 6"})
        sezioni += testa + std::string(" 0 0 0 0 0 0 0 0 0 0 0 0\n");
    ScriviFile(cartella / "sezioni_", sezioni);
    ScriviFile(cartella / "spessori", "2\n1, 5, 0, 20, 1\n2, 7, 0, 25, 1\n");
    ScriviFile(cartella / "el_conti.tmp",
               "3\n101, 0, \"A\"\n2\n7 8\n102, 0, \"B\"\n2\n9 12\n103, 0, \"C\"\n2\n7 9\n");
    return cartella;
}

std::string Riquadri(Programma &p) {
    const auto r = p.ChiudiRiquadro();
    return r.titolo + "|" + r.testo + "|" + r.icona;
}

namespace {

using S = Sessione &;
using T = const std::string &;

std::vector<std::uint32_t> Vista(S s) {
    RECT zona{};
    GetWindowRect(s.p.Controllo(s.fotoDi), &zona);
    return Schermo(&zona).pixel;
}

// Tab, not the mouse: a second click on the same box might count as a double click.
void VaiA(S s, T nome) {
    const auto fuoco = [&] {
        GUITHREADINFO g{};
        g.cbSize = sizeof g;
        GetGUIThreadInfo(GetWindowThreadProcessId(s.finestra, nullptr), &g);
        return g.hwndFocus;
    };
    for (int passi = 0; passi < 60 && !s.p.HaFuoco(nome); ++passi) {
        HWND prima = fuoco();
        s.p.Premi("Tab");
        s.p.Aspetta("Tab to move the focus", [&] { return fuoco() != prima; });
    }
    VERIFICA(s.p.HaFuoco(nome));
}

void Riscrivi(S s, T casella, T testo) {
    if (casella != "Risposta") VaiA(s, casella);
    s.p.Aspetta("the focus on " + casella, [&] { return s.p.HaFuoco(casella); });
    for (const char *tasti : {"Fine", "Shift+Inizio", "Canc"}) s.p.Premi(tasti);
    DIVENTA(s.p, s.p.Testo(casella), "");
    s.p.Scrivi(casella, testo);
}

void Menu(S s, T apri, T voce) {
    std::istringstream parti(voce);
    std::string tasti;
    for (std::string parte; parti >> parte; tasti += parte + ' ')
        for (int n = std::isdigit(parte[0]) ? std::stoi(std::exchange(parte, "Invio")) : 0; n > 0;
             --n)
            tasti += "Giu ";
    s.p.Menu(apri, tasti);
}

template <class F>
void Ogni(S s, T nomi, F lettura) {
    std::istringstream parole(nomi);
    for (std::string nome; parole >> nome;) {
        const bool atteso = nome[0] != '!';
        DIVENTA(s.p, lettura(nome.substr(atteso ? 0 : 1)), atteso);
    }
}

POINT Pulsante(S s, T indice) {
    return s.p.CentroBottone(s.p.Controllo("Toolbar1"), std::stoi(indice));
}

void Suggerisce(S s, T r) {
    s.p.Punta(s.disegno, {5, 5});
    DIVENTA(s.p, s.p.Suggerimento(), "");
    const HWND barra = s.p.Controllo("Toolbar1");
    const POINT qui = Pulsante(s, r);
    s.p.Punta(barra, qui);
    // A move that the bar has missed shows no tip: then the hand moves a little, now and again.
    int sondaggi = 0;
    const auto suggerimento = [&] {
        if (++sondaggi % 200 == 0) s.p.Punta(barra, {qui.x + sondaggi / 200 % 2, qui.y});
        return s.p.Suggerimento();
    };
    DIVENTA(s.p, suggerimento(), r.substr(r.find(' ') + 1));
}

std::string Luogo(const POINT &p) { return std::to_string(p.x) + "," + std::to_string(p.y); }

// To within two pixels: the view is kept in drawing units.
void NodoIn(S s, T r) {
    const POINT atteso = s.Luogo(r.substr(r.find(' ') + 1));
    POINT visto{};
    s.p.Aspetta(
        "the node to stand at " + Luogo(atteso),
        [&] {
            visto = s.Nodo(std::stoi(r)).value_or(POINT{-1, -1});
            return std::abs(visto.x - atteso.x) <= 2 && std::abs(visto.y - atteso.y) <= 2;
        },
        [&] { return Luogo(visto); });
}

// What was drawn reaches the screen a little later, so the picture has to rest for a while.
void Fotografa(S s, T nome) {
    ULONGLONG da = 0;
    s.fotoDi = nome;
    s.p.Aspetta("a picture at rest", [&] {
        if (auto ora = Vista(s); da == 0 || ora != std::exchange(s.foto, ora))
            da = GetTickCount64();
        return GetTickCount64() - da >= 100;
    });
}

void Confronta(S s, bool uguale) {
    s.p.Aspetta("the picture", [&] { return (Vista(s) == s.foto) == uguale; });
}

const std::map<std::string, void (*)(S, T)> verbi{
    {"vai", [](S s, T r) { VaiA(s, r); }},
    {"spazio", [](S s, T r) { VaiA(s, r), s.p.Premi("Spazio"); }},
    {"clic", [](S s, T r) { isdigit(r[0]) ? s.p.Clic(s.disegno, s.Luogo(r)) : s.p.Clic(r); }},
    {"doppio", [](S s, T r) { s.p.Clic(s.disegno, s.Luogo(r), Bottone::Sinistro, 2); }},
    {"medio", [](S s, T r) { s.p.Clic(s.disegno, s.Luogo(r), Bottone::Medio, 2); }},
    {"destro", [](S s, T r) { s.p.Clic(s.disegno, s.Luogo(r), Bottone::Destro); }},
    {"punta", [](S s, T r) { s.p.Punta(s.disegno, s.Luogo(r)); }},
    {"rotella", [](S s, T r) { s.p.Rotella(s.disegno, s.Luogo("3-60-60"), std::stoi(r)); }},
    {"bottone", [](S s, T r) { s.p.Clic(s.p.Controllo("Toolbar1"), Pulsante(s, r)); }},
    {"on", [](S s, T r) { Ogni(s, r, [&](T n) { return s.p.Abilitato(n); }); }},
    {"mostra", [](S s, T r) { Ogni(s, r, [&](T n) { return s.p.Visibile(n); }); }},
    {"spunta", [](S s, T r) { Ogni(s, r, [&](T n) { return s.p.Spuntato(n); }); }},
    {"vede", [](S s, T r) { Ogni(s, r, [&](T n) { return s.Nodo(std::stoi(n)).has_value(); }); }},
    {"in", NodoIn},
    {"tip", Suggerisce},
    {"box", [](S s, T r) { UGUALE(Riquadri(s.p), r); }},
    {"foto", Fotografa},
    {"uguale", [](S s, T) { Confronta(s, true); }},
    {"diversa", [](S s, T) { Confronta(s, false); }}};

const std::map<std::string, std::string> sigle{
    {"", "StringaSel"}, {"f", "FunAttiva"}, {"s", "SottoFunAttiva"}};

void Passo(S s, T passo) {
    const auto verbo = passo.substr(0, passo.find(' ')),
               resto = passo.substr(std::min(verbo.size() + 1, passo.size()));
    const auto uguale = passo.find('=');
    if (const auto trovato = verbi.find(verbo); trovato != verbi.end()) {
        trovato->second(s, resto);
    } else if (verbo[0] == '/') {
        Menu(s, "Alt+" + verbo.substr(1), resto);
    } else if (verbo[0] == '@') {
        s.p.Clic("OptElem(" + verbo.substr(1) + ")");
    } else if (uguale == std::string::npos) {
        s.p.Premi(passo);
    } else if (uguale > 0 && passo[uguale - 1] == ':') {
        Riscrivi(s, passo.substr(0, uguale - 1), passo.substr(uguale + 1));
    } else {
        const auto nome = passo.substr(0, uguale),
                   controllo = sigle.contains(nome) ? sigle.at(nome) : nome;
        DIVENTA(s.p, s.p.Testo(controllo), passo.substr(uguale + 1));
    }
}

} // namespace

Sessione::Sessione(const Ambiente &amb, int genere, const std::string &selezione)
    : lavoro(LavoroPiccolo(amb)), p((ScriviIngresso(lavoro, "Prova", selezione, genere), amb.telva),
                                    amb.Argomento("LAVORO=prova1|")),
      finestra(p.Principale()), disegno(p.Controllo("Disegno")) {
    p.Dimensiona(finestra, 1100, 800);
    RECT r{};
    GetClientRect(disegno, &r);
    p.Aspetta("the picture at its new size", [&] {
        return p.Pixel(disegno, {r.right - 3, r.bottom - 3}) == 0 &&
               p.Pixel(p.Controllo("FrameSel"), {180, 40}) != 0;
    });
    for (int nome : {1, 2, 3, 4, 20})
        p.Aspetta("node " + std::to_string(nome), [&] {
            const auto punto = Nodo(nome);
            if (punto) nodi[nome] = *punto;
            return punto.has_value();
        });
}

std::optional<POINT> Sessione::Nodo(int nome) const {
    static const std::map<int, std::uint32_t> colori{
        {1, 0xFFFFFF}, {2, 0x0000C0}, {3, 0xFF0000}, {4, 0x00FF00}, {20, 0xFF00FF}};
    RECT zona{}, trovato{};
    GetWindowRect(disegno, &zona);
    const auto vista = Schermo(&zona);
    for (int y = 0; y < vista.altezza; ++y)
        for (int x = 0; x < vista.larghezza; ++x)
            if (const RECT punto{x, y, x + 1, y + 1}; vista.In(x, y) == colori.at(nome))
                UnionRect(&trovato, &trovato, &punto);
    if (IsRectEmpty(&trovato)) return std::nullopt;
    return POINT{(trovato.left + trovato.right - 1) / 2, (trovato.top + trovato.bottom - 1) / 2};
}

POINT Sessione::Luogo(const std::string &luogo) const {
    std::istringstream testo(luogo);
    int a = 0, b = 0, dx = 0, dy = 0;
    testo >> a;
    const int segno = testo.peek();
    segno == '~' || segno == '/' ? testo.ignore() >> b : (b = a, testo);
    testo >> dx >> dy;
    const POINT da = nodi.at(a), al = nodi.at(b);
    return {(segno == '~' ? (da.x + al.x) / 2 : da.x) + dx,
            (segno == '~' ? (da.y + al.y) / 2 : al.y) + dy};
}

void Sessione::Fai(const std::string &passi) {
    std::istringstream testo(passi);
    for (std::string passo; std::getline(testo, passo, ';');) try {
            passo.erase(0, passo.find_first_not_of(' '));
            if (!passo.empty()) Passo(*this, passo);
        } catch (const Fallito &e) {
            throw Fallito("step '" + passo + "': " + e.what());
        }
}

} // namespace telva::prove
