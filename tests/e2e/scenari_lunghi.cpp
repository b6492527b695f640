// Long proofs, run by name only: what must never grow, and what must never be half written.
#include "Sessione.h"

#include <chrono>
#include <random>

using namespace telva::prove;

namespace {

const telva::ModuloTelva &f = telva::FormTelva;
constexpr auto kAdesso = std::chrono::steady_clock::now;

// One random command, by the messages that a user's hand would cause.
void UnComando(const Sessione &s, std::mt19937 &caso) {
    static constexpr UINT kTasti[] = {WM_LBUTTONDOWN, WM_MBUTTONDOWN, WM_MBUTTONUP};
    const auto tira = [&](std::size_t n) { return static_cast<unsigned>(caso() % n); };
    const LPARAM punto = MAKELPARAM(tira(700), tira(500));
    const telva::VoceMenu *voce = f.voci[tira(f.voci.size())];
    const std::string genere = "OptElem(" + std::to_string(tira(5)) + ")";
    switch (tira(6)) {
    case 0: // but those that end the program or open a dialog
        if (voce != &f.Salva && voce != &f.Esci && voce != &f.Trappola &&
            voce != &f.Rappresentazione)
            SendMessageW(s.finestra, WM_COMMAND, NumeroDi(*voce), 0);
        break;
    case 1: SendMessageW(s.Controllo(genere), BM_CLICK, 0, 0); break;
    case 2: PostMessageW(s.Controllo("Risposta"), WM_CHAR, '0' + tira(10), 0); break;
    case 3: SendMessageW(s.disegno, kTasti[tira(3)], 0, punto); break;
    default: SendMessageW(s.disegno, WM_MOUSEMOVE, tira(3) ? 0U : MK_MBUTTON, punto);
    }
}

} // namespace

SCENARIO(lungo_centomila_comandi) {
    Sessione s(amb);
    std::mt19937 caso(1);
    Risorse prima{};
    for (int n = 0; n < 100000; ++n) {
        UnComando(s, caso);
        if (n == 60000) prima = s.LeggiRisorse(); // every size of the window has been seen
        if (n % 1000 == 0) {
            s.Dimensiona(s.finestra, 800 + n / 1000 % 7 * 90, 640 + n / 1000 % 5 * 60);
            PostMessageW(s.finestra, WM_COMMAND, NumeroDi(f.Rappresentazione), 0);
            const HWND dialogo = s.Dialogo("Opzioni di rappresentazione");
            PostMessageW(dialogo, WM_CLOSE, 0, 0);
            s.Aspetta("the main window", [&] { return IsWindowEnabled(s.finestra); });
        }
    }
    const Risorse dopo = s.LeggiRisorse();
    std::printf("       GDI %lu %lu, USER %lu %lu, memory %zu %zu KiB\n", prima.gdi, dopo.gdi,
                prima.utente, dopo.utente, prima.piccoByte >> 10, dopo.piccoByte >> 10);
    AL_PIU(dopo.gdi, prima.gdi); // what is shown at the end may need fewer
    AL_PIU(dopo.utente, prima.utente);
    AL_PIU(dopo.piccoByte, prima.piccoByte + (1U << 19));
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
            PostMessageW(s.finestra, WM_COMMAND, NumeroDi(f.Salva), 0);
            const auto fine = kAdesso() + std::chrono::microseconds(caso() % 3000);
            while (kAdesso() < fine) continue;
        } // its end comes here, if not by itself
        Programma(amb.telva, amb.Argomento("LAVORO=prova1|")).Principale();
        const auto testo = Scritto(lavoro);
        const bool vecchio = testo == "8\r\n";
        UGUALE(testo, vecchio ? "8\r\n" : "9,14\r\n");
        vecchi += vecchio;
        VerificaNessunResto(lavoro);
    }
    std::printf("       the old file %d times of 100\n", vecchi);
}
