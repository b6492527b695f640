#include "Pilota.h"

#include <commctrl.h>
#include <psapi.h>
#include <winternl.h>

#include <algorithm>
#include <array>
#include <fstream>
#include <iterator>
#include <sstream>

namespace telva::prove {

namespace {

constexpr DWORD kLimiteMs = 60000;  // after this a step has failed, on the busiest machine too
constexpr DWORD kSondaggioMs = 3;   // between two looks at a condition
constexpr ULONGLONG kQuieteMs = 40; // a window takes input safely after this long without a change

std::wstring Classe(HWND finestra) {
    std::array<wchar_t, 256> nome{};
    GetClassNameW(finestra, nome.data(), 256);
    return nome.data();
}

// The title as the system keeps it: asks nothing of the program, so it also works when that hangs.
std::string Titolo(HWND finestra) {
    std::array<wchar_t, 1024> testo{};
    GetWindowTextW(finestra, testo.data(), 1024);
    return Utf8(testo.data());
}

template <class F>
BOOL CALLBACK Passa(HWND finestra, LPARAM visita) {
    return (*reinterpret_cast<F *>(visita))(finestra);
}

// Calls `visita` with each top-level window, or each descendant of `madre`, until it gives false.
template <class F>
void OgniFinestra(F visita, HWND madre = nullptr) {
    if (madre)
        EnumChildWindows(madre, Passa<F>, reinterpret_cast<LPARAM>(&visita));
    else
        EnumWindows(Passa<F>, reinterpret_cast<LPARAM>(&visita));
}

LRESULT Chiedi(HWND finestra, UINT messaggio, WPARAM w = 0, LPARAM l = 0) {
    DWORD_PTR esito = 0;
    if (!SendMessageTimeoutW(finestra, messaggio, w, l, SMTO_NORMAL, kLimiteMs, &esito) &&
        GetLastError() == ERROR_TIMEOUT)
        Fallisci("'" + Titolo(finestra) + "' gives no answer to message " +
                 std::to_string(messaggio));
    return static_cast<LRESULT>(esito);
}

GUITHREADINFO Filo(HWND finestra) {
    GUITHREADINFO g{};
    g.cbSize = sizeof g;
    if (!GetGUIThreadInfo(GetWindowThreadProcessId(finestra, nullptr), &g)) g = {};
    return g;
}

HWND FiglioIcona(HWND riquadro) {
    HWND icona = nullptr;
    OgniFinestra(
        [&](HWND f) {
            const bool statico = Classe(f) == L"Static";
            if (statico && (GetWindowLongW(f, GWL_STYLE) & SS_TYPEMASK) == SS_ICON &&
                Chiedi(f, STM_GETICON))
                icona = f;
            return icona == nullptr;
        },
        riquadro);
    return icona;
}

// Memory of the other process, where its windows can write an answer.
class MemoriaAltrui {
  public:
    MemoriaAltrui(HANDLE processo, std::size_t byte)
        : processo_(processo),
          dove_(VirtualAllocEx(processo, nullptr, byte, MEM_COMMIT, PAGE_READWRITE)) {
        if (!dove_) Fallisci("no memory in the program");
    }
    ~MemoriaAltrui() { VirtualFreeEx(processo_, dove_, 0, MEM_RELEASE); }
    MemoriaAltrui(const MemoriaAltrui &) = delete;
    MemoriaAltrui &operator=(const MemoriaAltrui &) = delete;

    template <class T>
    void Scrivi(const T &valore) const {
        if (!WriteProcessMemory(processo_, dove_, &valore, sizeof valore, nullptr))
            Fallisci("the program's memory cannot be written");
    }
    template <class T>
    void Leggi(T &valore, std::size_t da = 0) const {
        if (!ReadProcessMemory(processo_, Dove<char>(da), &valore, sizeof valore, nullptr))
            Fallisci("the program's memory cannot be read");
    }
    template <class T>
    T *Dove(std::size_t da = 0) const {
        return reinterpret_cast<T *>(static_cast<char *>(dove_) + da);
    }

  private:
    HANDLE processo_;
    void *dove_;
};

// Wine does not count GDI objects, but keeps the table of them where 64-bit Windows once kept it.
DWORD ContaGdi(HANDLE processo) {
    struct Voce {
        ULONG64 oggetto;
        ULONG proprietario;
        USHORT unico;
        UCHAR tipo, bandiere;
        ULONG64 utente;
    };
    constexpr std::size_t kTabellaNelPeb = 0xF8;
    std::vector<Voce> voci(65536);
    PROCESS_BASIC_INFORMATION info{};
    void *tabella = nullptr;
    if (NtQueryInformationProcess(processo, ProcessBasicInformation, &info, sizeof info, nullptr) ||
        !ReadProcessMemory(processo, reinterpret_cast<char *>(info.PebBaseAddress) + kTabellaNelPeb,
                           &tabella, sizeof tabella, nullptr) ||
        !ReadProcessMemory(processo, tabella, voci.data(), voci.size() * sizeof(Voce), nullptr))
        Fallisci("the GDI objects cannot be counted");
    return static_cast<DWORD>(
        std::count_if(voci.begin(), voci.end(), [](const Voce &v) { return v.tipo != 0; }));
}

constexpr int kAvviiInPiu = 5;

} // namespace

Programma::Programma(const std::wstring &eseguibile, const std::wstring &argomenti, bool ricorda) {
    if (!ricorda) RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\Telva");
    std::wstring riga = L"\"" + eseguibile + L"\" " + argomenti;
    STARTUPINFOW avvio{};
    avvio.cb = sizeof avvio;
    PROCESS_INFORMATION esito{};
    const auto parte = [&] {
        return CreateProcessW(eseguibile.c_str(), riga.data(), nullptr, nullptr, FALSE, 0, nullptr,
                              nullptr, &avvio, &esito) != FALSE;
    };
    // Wine refuses a start now and then with this error, however good the program is.
    bool partito = parte();
    for (int n = 0; n < kAvviiInPiu && !partito && GetLastError() == ERROR_INTERNAL_ERROR; ++n)
        partito = parte();
    if (!partito)
        Fallisci("cannot start " + Utf8(riga) + ", error " + std::to_string(GetLastError()));
    CloseHandle(esito.hThread);
    processo_ = esito.hProcess;
    pid_ = esito.dwProcessId;
    AllowSetForegroundWindow(pid_); // else Windows may keep a new window behind the console
}

Programma::~Programma() {
    if (!Finito()) {
        TerminateProcess(processo_, 99);
        WaitForSingleObject(processo_, kLimiteMs);
    }
    CloseHandle(processo_);
}

DWORD Programma::AttendiFine() {
    if (WaitForSingleObject(processo_, kLimiteMs) != WAIT_OBJECT_0)
        Fallisci("waited a minute for the end of the program; saw " + Stato());
    DWORD codice = 0;
    GetExitCodeProcess(processo_, &codice);
    return codice;
}

bool Programma::Sua(HWND finestra) const {
    DWORD pid = 0;
    GetWindowThreadProcessId(finestra, &pid);
    return pid == pid_;
}

std::vector<HWND> Programma::Cime(const std::wstring &classe) const {
    std::vector<HWND> cime;
    OgniFinestra([&](HWND f) {
        if (Sua(f) && IsWindowVisible(f) && Classe(f).starts_with(classe)) cime.push_back(f);
        return true;
    });
    return cime;
}

std::string Programma::Stato() const {
    std::ostringstream s;
    DWORD codice = 0;
    if (Finito() && GetExitCodeProcess(processo_, &codice))
        s << "program ended, code " << codice;
    else
        s << "program running";
    HWND davanti = GetForegroundWindow();
    s << "; in front: " << Utf8(Classe(davanti)) << " '" << Titolo(davanti) << "'; windows:";
    for (HWND f : Cime()) {
        HWND testo = GetDlgItem(f, 0xFFFF);
        s << " [" << Utf8(Classe(f)) << " '" << Titolo(f)
          << (IsWindowEnabled(f) ? "'" : "' disabled")
          << (testo ? " text '" + Testo(testo) + "']" : "]");
    }
    return s.str();
}

void Programma::Aspetta(const std::string &cosa, const std::function<bool()> &fatto,
                        const std::function<std::string()> &visto) const {
    for (const ULONGLONG fine = GetTickCount64() + kLimiteMs;; Sleep(kSondaggioMs)) {
        const bool finito = Finito(); // asked first, so that what the end brings about still counts
        if (fatto()) return;
        if (finito || GetTickCount64() > fine)
            Fallisci("expected " + cosa + "; saw " + (visto ? visto() + "; " : "") + Stato());
    }
}

bool Programma::InMenu() const {
    constexpr DWORD kMenu = GUI_INMENUMODE | GUI_POPUPMENUMODE | GUI_SYSTEMMENUMODE;
    const auto cime = Cime();
    return std::any_of(cime.begin(), cime.end(), [](HWND f) {
        return (Filo(f).flags & kMenu) != 0 || Classe(f) == L"#32768";
    });
}

bool Programma::Pronta(HWND finestra) const {
    if (!finestra || GetForegroundWindow() != finestra || !IsWindowEnabled(finestra)) return false;
    const auto g = Filo(finestra);
    return g.hwndActive == finestra && g.hwndFocus && !InMenu();
}

// Right after a change of window the system still moves activation and focus about, and modifier
// keys sent then are lost; so a window must look ready for a while without a break.
void Programma::Stabile(HWND finestra) {
    const auto bersaglio = [&]() -> HWND {
        HWND davanti = finestra ? finestra : GetForegroundWindow();
        return Sua(davanti) && Pronta(davanti) ? davanti : nullptr;
    };
    if (HWND ora = bersaglio(); ora && ora == stabile_) return;
    HWND visto = nullptr;
    ULONGLONG da = 0;
    Aspetta("'" + (finestra ? Titolo(finestra) : "a window") + "' to take input", [&] {
        const ULONGLONG tempo = GetTickCount64();
        if (HWND ora = bersaglio(); !ora || ora != visto) {
            visto = ora;
            da = tempo;
        }
        return visto && tempo - da >= kQuieteMs;
    });
    Smaltisci(visto); // what its opening still had to do is done
    stabile_ = visto;
}

HWND Programma::Principale(const std::wstring &classe) {
    std::vector<HWND> trovate;
    Aspetta("a window of class " + Utf8(classe), [&] { return !(trovate = Cime(classe)).empty(); });
    Stabile(trovate.front());
    return trovate.front();
}

HWND Programma::Dialogo(const std::string &titolo) {
    HWND trovata = nullptr;
    Aspetta("a window with the caption '" + titolo + "'", [&] {
        for (HWND f : Cime())
            if (Titolo(f) == titolo) trovata = f;
        return trovata != nullptr;
    });
    stabile_ = nullptr; // a new window may have the handle of one that is gone
    Stabile(trovata);
    return trovata;
}

Riquadro Programma::AttendiRiquadro() {
    Riquadro r;
    Aspetta("a message box", [&] {
        for (HWND f : Cime(L"#32770"))
            if (GetDlgItem(f, 0xFFFF)) r.finestra = f;
        return r.finestra != nullptr;
    });
    stabile_ = nullptr;
    Stabile(r.finestra);
    r.titolo = Testo(r.finestra);
    r.testo = Testo(GetDlgItem(r.finestra, 0xFFFF));
    if (HWND icona = FiglioIcona(r.finestra))
        Aspetta("a known icon in the box", [&] { return !(r.icona = NomeIcona(icona)).empty(); });
    return r;
}

Riquadro Programma::ChiudiRiquadro(const std::string &tasto) {
    Riquadro r = AttendiRiquadro();
    Passo("close the box '" + r.testo + "'");
    Premi(tasto);
    Aspetta("the box '" + r.testo + "' to close",
            [&] { return Finito() || !IsWindowVisible(r.finestra); });
    stabile_ = nullptr;
    return r;
}

HWND Programma::Trova(const std::string &nome) const {
    HWND trovato = nullptr;
    const auto cerca = [&](HWND f) {
        if (Nome(f) == nome) trovato = f;
        return trovato == nullptr;
    };
    for (HWND cima : Cime())
        if (!trovato) OgniFinestra(cerca, cima);
    return trovato;
}

HWND Programma::Controllo(const std::string &nome) const {
    HWND trovato = nullptr;
    Aspetta("control '" + nome + "'", [&] { return (trovato = Trova(nome)) != nullptr; });
    return trovato;
}

std::string Programma::Testo(HWND finestra) const {
    for (;;) {
        const auto lung = static_cast<std::size_t>(Chiedi(finestra, WM_GETTEXTLENGTH));
        std::wstring testo(lung + 2, L'\0'); // room for one more shows that it has grown meanwhile
        const auto letti = static_cast<std::size_t>(
            Chiedi(finestra, WM_GETTEXT, testo.size(), reinterpret_cast<LPARAM>(testo.data())));
        if (letti > lung) continue;
        testo.resize(letti);
        return Utf8(testo);
    }
}

bool Programma::Spuntato(const std::string &nome) const {
    return Chiedi(Controllo(nome), BM_GETCHECK) == BST_CHECKED;
}

HWND Programma::Fuoco() const { return Filo(GetForegroundWindow()).hwndFocus; }

bool Programma::HaFuoco(const std::string &nome) const {
    HWND f = Controllo(nome);
    return Filo(f).hwndFocus == f;
}

POINT Programma::InMillesimi(HWND controllo, LONG x, LONG y) {
    RECT r{};
    GetClientRect(controllo, &r);
    return {r.right * x / 1000, r.bottom * y / 1000};
}

POINT Programma::CentroBottone(HWND barra, int indice) const {
    const MemoriaAltrui la(processo_, sizeof(RECT));
    RECT r{};
    if (!Chiedi(barra, TB_GETITEMRECT, WPARAM(indice), LPARAM(la.Dove<RECT>())))
        Fallisci("no tool-bar button " + std::to_string(indice));
    la.Leggi(r);
    return {(r.left + r.right) / 2, (r.top + r.bottom) / 2};
}

std::string Programma::Nome(HWND controllo) {
    const auto atomo = reinterpret_cast<ULONG_PTR>(GetPropW(controllo, L"TelvaNome"));
    std::array<wchar_t, 256> nome{};
    if (atomo == 0 || atomo > 0xFFFF) return {};
    GlobalGetAtomNameW(static_cast<ATOM>(atomo), nome.data(), 256);
    return Utf8(nome.data());
}

std::map<HWND, std::string> Programma::Suggerimenti(HWND cima) const {
    std::array<wchar_t, 2048> testo{};
    const MemoriaAltrui la(processo_, sizeof(TTTOOLINFOW) + sizeof testo);
    std::map<HWND, std::string> letti;
    const auto leggi = [&](HWND suggerimenti) {
        const auto quanti = static_cast<WPARAM>(Chiedi(suggerimenti, TTM_GETTOOLCOUNT));
        for (WPARAM k = 0; k < quanti; ++k) {
            TTTOOLINFOW strumento{};
            strumento.cbSize = sizeof strumento;
            strumento.lpszText = la.Dove<wchar_t>(sizeof strumento);
            la.Scrivi(strumento);
            Chiedi(suggerimenti, TTM_ENUMTOOLSW, k, LPARAM(la.Dove<TTTOOLINFOW>()));
            la.Leggi(strumento);
            la.Leggi(testo, sizeof strumento);
            if (strumento.hwnd == cima && (strumento.uFlags & TTF_IDISHWND) != 0)
                letti[reinterpret_cast<HWND>(strumento.uId)] = Utf8(testo.data());
        }
    };
    OgniFinestra([&](HWND f) {
        if (Sua(f) && Classe(f) == L"tooltips_class32") leggi(f);
        return true;
    });
    return letti;
}

std::string Programma::Suggerimento() const {
    const auto aperti = Cime(L"tooltips_class32");
    return aperti.empty() ? std::string{} : Testo(aperti.front());
}

std::uint32_t Programma::Pixel(HWND finestra, POINT dove) const {
    ClientToScreen(finestra, &dove);
    const RECT zona{dove.x, dove.y, dove.x + 1, dove.y + 1};
    return Schermo(&zona).In(0, 0);
}

Risorse Programma::LeggiRisorse() const {
    PROCESS_MEMORY_COUNTERS memoria{};
    if (!GetProcessMemoryInfo(processo_, &memoria, sizeof memoria))
        Fallisci("the memory counters cannot be read");
    Risorse r{GetGuiResources(processo_, GR_GDIOBJECTS), GetGuiResources(processo_, GR_USEROBJECTS),
              memoria.PeakWorkingSetSize};
    if (r.gdi == 0 && sizeof(void *) == 8) r.gdi = ContaGdi(processo_);
    if (r.utente == 0)
        for (HWND cima : Cime()) {
            ++r.utente;
            OgniFinestra([&](HWND) { return ++r.utente != 0; }, cima);
        }
    return r;
}

void Programma::Premi(const std::string &tasti) {
    Passo("press " + tasti);
    Stabile();
    Manda(Accordo(tasti));
}

void Programma::Digita(const std::string &testo) {
    Passo("type '" + testo + "'");
    Stabile();
    Manda(Battute(testo));
}

void Programma::Scrivi(const std::string &nome, const std::string &testo) {
    Aspetta("the focus on " + nome, [&] { return HaFuoco(nome); });
    Digita(testo);
    Aspetta(
        "'" + testo + "' in " + nome, [&] { return Testo(nome).ends_with(testo); },
        [&] { return "'" + Testo(nome) + "'"; });
}

void Programma::Riscrivi(const std::string &nome, const std::string &testo) {
    Clic(nome);
    for (const char *tasti : {"Fine", "Shift+Inizio"}) Premi(tasti);
    Scrivi(nome, testo);
}

void Programma::Menu(const std::string &apri, const std::string &tasti) {
    Premi(apri);
    Passo("in that menu " + tasti);
    Aspetta("the menu of " + apri, [&] { return !Cime(L"#32768").empty(); });
    std::istringstream parti(tasti);
    for (std::string tasto; parti >> tasto;) Manda(Accordo(tasto));
    Aspetta("the menu of " + apri + " to close after " + tasti,
            [&] { return Finito() || !InMenu(); });
    stabile_ = nullptr;
}

// The system makes a paint message only for a thread that has no input left. So a window that had
// to be painted, and has been, has handled every key and every move sent before.
void Programma::Smaltisci(HWND cima) const {
    RedrawWindow(cima, nullptr, nullptr, RDW_INVALIDATE | RDW_NOCHILDREN);
    Aspetta("'" + Titolo(cima) + "' to handle its input",
            [&] { return !GetUpdateRect(cima, nullptr, FALSE); });
}

// Moves go one by one, each once the one before has been handled. A move that meets others in the
// queue of its window may be lost with them. Besides, a display server sends every move back to
// the window under it; such an echo of an earlier move, when it comes last, leaves the program
// with the earlier place. A look at the screen is answered only after the echo has been sent.
void Programma::Muovi(HWND cima, POINT schermo) const {
    Smaltisci(cima);
    Aspetta("the pointer to stay where it was sent", [&] {
        Manda({Mouse(schermo)});
        const RECT angolo{0, 0, 1, 1};
        Schermo(&angolo);
        Smaltisci(cima);
        POINT ora{};
        return GetCursorPos(&ora) && ora.x == schermo.x && ora.y == schermo.y;
    });
}

POINT Programma::Punta(HWND finestra, POINT dove) {
    Passo("point at " + Nome(finestra) + " " + std::to_string(dove.x) + "," +
          std::to_string(dove.y));
    HWND cima = GetAncestor(finestra, GA_ROOT);
    Stabile(cima);
    Smaltisci(cima); // a window that is still on its way elsewhere arrives first
    POINT schermo{};
    Aspetta(
        "'" + Nome(finestra) + "' not covered at its place on the screen",
        [&] {
            schermo = dove;
            ClientToScreen(finestra, &schermo);
            return GetAncestor(WindowFromPoint(schermo), GA_ROOT) == cima;
        },
        [&] {
            HWND sopra = GetAncestor(WindowFromPoint(schermo), GA_ROOT);
            return std::to_string(schermo.x) + "," + std::to_string(schermo.y) + " covered by " +
                   Utf8(Classe(sopra)) + " '" + Titolo(sopra) + "'";
        });
    Muovi(cima, schermo);
    return schermo;
}

void Programma::Clic(HWND finestra, POINT dove, Bottone bottone, int volte) {
    dove = Punta(finestra, dove);
    Passo(volte == 1 ? "click" : "double click");
    std::vector<INPUT> eventi;
    for (int i = 0; i < volte; ++i)
        eventi.insert(eventi.end(), {Mouse(dove, Giu(bottone)), Mouse(dove, Su(bottone))});
    Manda(eventi);
}

void Programma::Trascina(HWND finestra, POINT da, POINT a, Bottone bottone,
                         const std::function<void()> &inMezzo) {
    HWND cima = GetAncestor(finestra, GA_ROOT);
    da = Punta(finestra, da);
    ClientToScreen(finestra, &a);
    Passo("drag from there to " + std::to_string(a.x) + "," + std::to_string(a.y) +
          " of the screen");
    const Tenuti premuto({Mouse(da, Giu(bottone)), Mouse(a, Su(bottone))});
    for (int passo : {1, 2, 3, 4})
        Muovi(cima, {da.x + (a.x - da.x) * passo / 4, da.y + (a.y - da.y) * passo / 4});
    if (inMezzo) inMezzo();
}

void Programma::Rotella(HWND finestra, POINT dove, int scatti) {
    Punta(finestra, dove);
    Passo("turn the wheel by " + std::to_string(scatti));
    INPUT e{};
    e.type = INPUT_MOUSE;
    e.mi.dwFlags = MOUSEEVENTF_WHEEL;
    e.mi.mouseData = static_cast<DWORD>(scatti * WHEEL_DELTA);
    Manda({e});
}

void Programma::Dimensiona(HWND finestra, int larghezza, int altezza) {
    Passo("size " + std::to_string(larghezza) + "x" + std::to_string(altezza));
    if (!SetWindowPos(finestra, nullptr, 0, 0, larghezza, altezza,
                      SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE))
        Fallisci("the window cannot be resized, error " + std::to_string(GetLastError()));
}

void Programma::CambiaDpi(HWND finestra, UINT dpi) {
    Passo("DPI " + std::to_string(dpi));
    const MemoriaAltrui la(processo_, sizeof(RECT));
    RECT posto{};
    GetWindowRect(finestra, &posto);
    la.Scrivi(posto);
    Chiedi(finestra, WM_DPICHANGED, MAKEWPARAM(dpi, dpi), LPARAM(la.Dove<RECT>()));
}

void ScriviFile(const std::filesystem::path &file, const std::string &utf8) {
    std::wstring righe;
    for (wchar_t c : Largo(utf8)) righe += c == L'\n' ? std::wstring(L"\r\n") : std::wstring(1, c);
    std::string byte(righe.size(), '\0');
    const int n = static_cast<int>(righe.size());
    WideCharToMultiByte(1252, 0, righe.data(), n, byte.data(), n, nullptr, nullptr);
    std::filesystem::create_directories(file.parent_path());
    std::ofstream uscita(file, std::ios::binary);
    if (!uscita.write(byte.data(), n).flush()) Fallisci("cannot write " + Utf8(file.wstring()));
}

std::optional<std::string> LeggiByte(const std::filesystem::path &file) {
    std::ifstream ingresso(file, std::ios::binary);
    if (!ingresso) return std::nullopt;
    return std::string(std::istreambuf_iterator<char>(ingresso), {});
}

void ScriviIngresso(const std::filesystem::path &lavoro, const std::string &titolo,
                    const std::string &selezione, int genere) {
    ScriviFile(lavoro / "TelvaIn.txt",
               titolo + "\n" + selezione + "\n" + std::to_string(genere) + "\n");
    std::filesystem::remove(lavoro / "TelvaOut.txt");
}

} // namespace telva::prove
