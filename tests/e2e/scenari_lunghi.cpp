// Long proofs, run by name only: what must never grow, and what must never be half written.
#include "Sessione.h"

#include <random>

using namespace telva::prove;

namespace {

void Manda(HWND f, UINT messaggio, WPARAM w = 0, LPARAM l = 0) { SendMessageW(f, messaggio, w, l); }

// One random command, by the messages that a user's hand would cause.
void UnComando(Sessione &s, std::mt19937 &caso) {
    const auto tira = [&](unsigned n) { return static_cast<int>(caso() % n); };
    const auto nome = [](const char *base, int k) {
        return base + ("(" + std::to_string(k) + ")");
    };
    const LPARAM punto = MAKELPARAM(tira(700) - 20, tira(500) - 20);
    const UINT tasti[] = {WM_LBUTTONDOWN, WM_LBUTTONDOWN, WM_MBUTTONDOWN, WM_MBUTTONUP};
    switch (tira(8)) {
    case 0: // every menu item but those that end the program or open a dialog
        return Manda(s.finestra, WM_COMMAND, static_cast<WPARAM>(1004 + tira(59)));
    case 1: return Manda(s.p.Controllo(nome("OptElem", tira(5))), BM_CLICK);
    case 2:
        return Manda(s.p.Controllo(std::array{"NodiAtt", "AsteAtt", "GusciAtt", "ElSelez",
                                              "ElNonSelez"}[static_cast<std::size_t>(tira(5))]),
                     BM_CLICK);
    case 3:
        return Manda(s.p.Controllo(nome("Angolo", tira(3))), WM_SETTEXT, 0,
                     reinterpret_cast<LPARAM>(std::to_wstring(tira(360)).c_str()));
    case 4: // a list of names, taken only while an add or remove function runs
        Manda(s.finestra, WM_COMMAND, 1056);
        Manda(s.p.Controllo("Risposta"), WM_SETTEXT, 0,
              reinterpret_cast<LPARAM>((std::to_wstring(tira(20)) + L"-99").c_str()));
        PostMessageW(s.p.Controllo("Risposta"), WM_KEYDOWN, VK_RETURN, 0);
        return Manda(s.finestra, WM_NULL);
    case 5: return Manda(s.disegno, tasti[tira(4)], 0, punto);
    default: return Manda(s.disegno, WM_MOUSEMOVE, tira(3) ? 0U : MK_MBUTTON, punto);
    }
}

} // namespace

SCENARIO(lungo_centomila_comandi) {
    Sessione s(amb);
    std::mt19937 caso(1);
    Risorse prima{};
    for (int n = 0; n < 100000; ++n) {
        UnComando(s, caso);
        if (n == 60000) prima = s.p.LeggiRisorse(); // every size of the window has been seen
        if (n % 10000 == 9999)
            std::printf("       %d commands: %zu KiB\n", n + 1, s.p.LeggiRisorse().piccoByte >> 10);
        if (n % 1000 == 0) {
            s.p.Dimensiona(s.finestra, 800 + n / 1000 % 7 * 90, 640 + n / 1000 % 5 * 60);
            PostMessageW(s.finestra, WM_COMMAND, 1064, 0);
            const HWND dialogo = s.p.Dialogo("Opzioni di rappresentazione");
            PostMessageW(dialogo, WM_CLOSE, 0, 0);
            s.p.Aspetta("the main window", [&] { return IsWindowEnabled(s.finestra); });
        }
    }
    const Risorse dopo = s.p.LeggiRisorse();
    std::printf("       GDI %lu %lu, USER %lu %lu, memory %zu %zu KiB\n", prima.gdi, dopo.gdi,
                prima.utente, dopo.utente, prima.piccoByte >> 10, dopo.piccoByte >> 10);
    UGUALE(dopo.gdi, prima.gdi);
    UGUALE(dopo.utente, prima.utente);
    VERIFICA(dopo.piccoByte < prima.piccoByte + (1U << 19));
}

// A drag that loses its last move leaves the picture behind the pointer.
SCENARIO(lungo_mille_trascinamenti) {
    Sessione s(amb, Genere::Nodi);
    POINT nodo = s.Punto(Nodo(4));
    for (int giro = 0; giro < 1000; ++giro) {
        const POINT inizio{60 + giro % 3 * 50, 40}; // twice at one place is a double click
        const int dx = giro % 2 ? 40 : -40, dy = giro % 4 < 2 ? 24 : -24;
        s.p.Trascina(s.disegno, inizio, {inizio.x + dx, inizio.y + dy}, Bottone::Medio);
        nodo.x += dx, nodo.y += dy;
        POINT visto{};
        s.p.Aspetta(
            "node 4 after drag " + std::to_string(giro) + " at " + std::to_string(nodo.x) + "," +
                std::to_string(nodo.y),
            [&] {
                visto = s.DoveStaNodo(4).value_or(POINT{-1, -1});
                return std::abs(visto.x - nodo.x) <= 2 && std::abs(visto.y - nodo.y) <= 2;
            },
            [&] { return std::to_string(visto.x) + "," + std::to_string(visto.y); });
        nodo = visto;
    }
    VERIFICA(true);
}

// Killed at any moment of writing: the file is the old one or the new one, and once the program has
// been started again nothing else is there.
SCENARIO(lungo_ucciso_mentre_scrive) {
    std::mt19937 caso(2);
    int vecchi = 0;
    for (int giro = 0; giro < 100; ++giro) {
        std::filesystem::path lavoro;
        {
            Sessione s(amb, Genere::Aste, "9,14");
            lavoro = s.lavoro;
            ScriviFile(lavoro / "TelvaOut.txt", "8\n");
            PostMessageW(s.finestra, WM_COMMAND, 1001, 0);
            LARGE_INTEGER ora{}, alt{}, al{};
            QueryPerformanceFrequency(&al);
            QueryPerformanceCounter(&alt);
            alt.QuadPart += al.QuadPart * static_cast<LONGLONG>(caso() % 3000) / 1000000;
            while (QueryPerformanceCounter(&ora) && ora.QuadPart < alt.QuadPart) {
            }
        } // its end comes here, if not by itself
        Programma(amb.telva, amb.Argomento("LAVORO=prova1|"))
            .Principale(); // what a next start finds
        const auto testo = LeggiByte(lavoro / "TelvaOut.txt").value_or("-");
        VERIFICA(testo == "8\r\n" || testo == "9,14\r\n");
        vecchi += testo == "8\r\n";
        for (const auto &voce : std::filesystem::directory_iterator(lavoro))
            VERIFICA(voce.path().wstring().find(L".~") == std::wstring::npos);
    }
    std::printf("       the old file %d times of 100\n", vecchi);
}
