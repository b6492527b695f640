// The process: argument string, message loop, windows and boxes of the system.
#include "platform/messaggi.h"
#include "platform/programma.h"
#include "platform/win32/finestra_win32.h"
#include "platform/win32/riquadro_win32.h"
#include "platform/win32/schermo_win32.h"

#include <algorithm>
#include <memory>
#include <string_view>
#include <vector>

namespace telva {
namespace {

class Sistema : public SistemaFinestre {
  public:
    void Prepara(Modulo &modulo) override {
        modulo.dpi = DpiDi(nullptr);
        if (!(posto_ = LeggiPosto(modulo))) return;
        modulo.Width = std::max(posto_->larghezza, modulo.larghezzaMinima);
        modulo.Height = std::max(posto_->altezza, modulo.altezzaMinima);
    }

    void Mostra(Modulo &modulo) override {
        principale_ = std::make_unique<FinestraWin32>(modulo, nullptr);
        if (posto_) principale_->Misura().Sposta(posto_->left, posto_->top);
        principale_->Mostra(posto_ && posto_->massimizzata ? SW_SHOWMAXIMIZED : SW_SHOWDEFAULT);
    }

    void MostraModale(Modulo &modulo) override {
        const HWND proprietaria = Attiva();
        FinestraWin32 finestra(modulo, proprietaria);
        dialoghi_.push_back(&finestra);
        if (proprietaria) EnableWindow(proprietaria, FALSE);
        finestra.Mostra(SW_SHOW);
        MSG m{};
        while (modulo.Mostrata() && GetMessageW(&m, nullptr, 0, 0) > 0) Tratta(m);
        // Before the dialog goes, or the system would activate another program's window.
        if (proprietaria) {
            EnableWindow(proprietaria, TRUE);
            SetActiveWindow(proprietaria);
        }
        dialoghi_.pop_back();
        if (m.message == WM_QUIT) PostQuitMessage(static_cast<int>(m.wParam));
    }

    void Chiudi(Modulo &modulo) override {
        if (principale_ && &principale_->DelModulo() == &modulo)
            FineProgramma();
        else
            PostThreadMessageW(GetCurrentThreadId(), WM_NULL, 0, 0); // wakes the modal loop
    }

    void MostraPopup(Modulo &modulo, VoceMenu &menu) override {
        if (principale_ && &principale_->DelModulo() == &modulo) principale_->MostraPopup(menu);
    }

    HWND Attiva() const {
        if (!dialoghi_.empty()) return dialoghi_.back()->Maniglia();
        return principale_ ? principale_->Maniglia() : nullptr;
    }

    static void Tratta(MSG &m) {
        FinestraWin32 *finestra = FinestraWin32::Di(m.hwnd);
        if (finestra && finestra->PreTraduci(m)) return;
        TranslateMessage(&m);
        DispatchMessageW(&m);
    }

    // What outlives a process that ends at once.
    void Congeda(int codice) const {
        for (const FinestraWin32 *dialogo : dialoghi_) dialogo->TogliNomi();
        if (!principale_) return;
        principale_->TogliNomi();
        if (codice == 0)
            ScriviPosto(principale_->Misura().Posto()); // a faulty program keeps nothing
    }

    bool HaFinestra() const { return principale_ != nullptr; }

  private:
    std::optional<PostoFinestra> posto_;
    std::unique_ptr<FinestraWin32> principale_;
    std::vector<FinestraWin32 *> dialoghi_;
};

Sistema &IlSistema() {
    static Sistema sistema;
    return sistema;
}

UINT IconaMessaggio(Gravita gravita) {
    return gravita == Gravita::Critica        ? MB_ICONERROR
           : gravita == Gravita::Esclamazione ? MB_ICONWARNING
                                              : MB_ICONINFORMATION;
}

// What follows the program's own name on the command line, untouched: taken apart into arguments it
// would lose its quotes and blanks.
std::string Argomento() {
    std::wstring_view riga = GetCommandLineW();
    if (riga.starts_with(L'"')) {
        const std::size_t fine = riga.find(L'"', 1);
        riga.remove_prefix(fine == std::wstring_view::npos ? riga.size() : fine + 1);
    } else {
        const std::size_t fine = riga.find_first_of(L" \t");
        riga.remove_prefix(fine == std::wstring_view::npos ? riga.size() : fine);
    }
    while (!riga.empty() && (riga.front() == L' ' || riga.front() == L'\t')) riga.remove_prefix(1);
    // A caller that quotes the whole string means what stands between the quotes.
    if (riga.size() >= 2 && riga.front() == L'"' && riga.back() == L'"')
        riga = riga.substr(1, riga.size() - 2);
    return DaLargo(riga);
}

int Esegui() {
    SetErrorMode(SEM_FAILCRITICALERRORS); // a missing disk is an error to report, not a system box
    SetDllDirectoryW(L""); // no library out of the folder that a caller happens to stand in
    const INITCOMMONCONTROLSEX classi{sizeof classi, ICC_BAR_CLASSES | ICC_STANDARD_CLASSES};
    InitCommonControlsEx(&classi);
    ImpostaMessaggi([](const std::string &testo, Gravita gravita, const std::string &titolo) {
        ReleaseCapture(); // a drag ends where a box begins
        const HWND proprietaria = IlSistema().Attiva();
        MessageBoxW(proprietaria, ALargo(NelRiquadro(testo, proprietaria)).c_str(),
                    ALargo(titolo).c_str(), MB_OK | MB_SETFOREGROUND | IconaMessaggio(gravita));
    });
    // At once: nothing of what is still on the way may run any more.
    ImpostaFine([](int codice) {
        IlSistema().Congeda(codice);
        ExitProcess(static_cast<UINT>(codice));
    });
    ImpostaSistemaFinestre(&IlSistema());
    Principale(Argomento());
    MSG m{};
    while (IlSistema().HaFinestra() && GetMessageW(&m, nullptr, 0, 0) > 0) Sistema::Tratta(m);
    return static_cast<int>(m.wParam);
}

} // namespace
} // namespace telva

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) { return telva::Esegui(); }
