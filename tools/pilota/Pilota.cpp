#include "Pilota.h"

#include <commctrl.h>
#include <psapi.h>
#include <winternl.h>

#include <algorithm>
#include <array>
#include <cwctype>
#include <fstream>
#include <iterator>
#include <map>
#include <sstream>
#include <utility>

namespace telva::prove {

std::function<void()> alFallimento;

namespace {

constexpr DWORD limiteMs = 20000;  // after this a step has failed
constexpr DWORD sondaggioMs = 3;   // between two looks at a condition
constexpr ULONGLONG quieteMs = 40; // a window takes input safely after this long without a change
constexpr DWORD riposoPuntatore =
    15; // before modifiers, wheel and drags, so that moves are not merged

[[noreturn]] void Fallisci(const std::string &testo) {
    if (alFallimento) alFallimento();
    throw Fallito(testo);
}

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

std::string NomeControllo(HWND finestra) {
    const auto atomo = reinterpret_cast<ULONG_PTR>(GetPropW(finestra, L"TelvaNome"));
    std::array<wchar_t, 256> nome{};
    if (atomo == 0 || atomo > 0xFFFF) return {};
    GlobalGetAtomNameW(static_cast<ATOM>(atomo), nome.data(), 256);
    return Utf8(nome.data());
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
    if (!SendMessageTimeoutW(finestra, messaggio, w, l, SMTO_NORMAL, limiteMs, &esito) &&
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

// Wine does not count GDI objects, but keeps the table of them where 64-bit Windows once kept it.
DWORD ContaGdi(HANDLE processo) {
    struct Voce {
        ULONG64 oggetto;
        ULONG proprietario;
        USHORT unico;
        UCHAR tipo, bandiere;
        ULONG64 utente;
    };
    constexpr std::size_t tabellaNelPeb = 0xF8;
    std::vector<Voce> voci(65536);
    PROCESS_BASIC_INFORMATION info{};
    void *tabella = nullptr;
    if (NtQueryInformationProcess(processo, ProcessBasicInformation, &info, sizeof info, nullptr) ||
        !ReadProcessMemory(processo, reinterpret_cast<char *>(info.PebBaseAddress) + tabellaNelPeb,
                           &tabella, sizeof tabella, nullptr) ||
        !ReadProcessMemory(processo, tabella, voci.data(), voci.size() * sizeof(Voce), nullptr))
        Fallisci("the GDI objects cannot be counted");
    return static_cast<DWORD>(
        std::count_if(voci.begin(), voci.end(), [](const Voce &v) { return v.tipo != 0; }));
}

INPUT Tasto(WORD vk, bool giu) {
    INPUT e{};
    e.type = INPUT_KEYBOARD;
    e.ki.wVk = vk;
    e.ki.wScan = static_cast<WORD>(MapVirtualKeyW(vk, MAPVK_VK_TO_VSC));
    const bool esteso = (vk >= VK_PRIOR && vk <= VK_DOWN) || vk == VK_INSERT || vk == VK_DELETE;
    e.ki.dwFlags = (giu ? 0U : KEYEVENTF_KEYUP) | (esteso ? KEYEVENTF_EXTENDEDKEY : 0U);
    return e;
}

WORD CodiceTasto(const std::string &nome) {
    static const std::map<std::string, WORD> nomi{
        {"Ctrl", VK_CONTROL}, {"Shift", VK_SHIFT},  {"Alt", VK_MENU},      {"Invio", VK_RETURN},
        {"Esc", VK_ESCAPE},   {"Tab", VK_TAB},      {"Spazio", VK_SPACE},  {"Indietro", VK_BACK},
        {"Canc", VK_DELETE},  {"Inizio", VK_HOME},  {"Fine", VK_END},      {"Su", VK_UP},
        {"Giu", VK_DOWN},     {"Destra", VK_RIGHT}, {"Sinistra", VK_LEFT}, {"F1", VK_F1},
        {"F4", VK_F4},        {"F10", VK_F10}};
    if (const auto trovato = nomi.find(nome); trovato != nomi.end()) return trovato->second;
    const auto lettera = Largo(nome);
    if (lettera.size() != 1) Fallisci("unknown key '" + nome + "'");
    const SHORT vk = VkKeyScanW(static_cast<wchar_t>(std::towlower(lettera[0])));
    if (vk == -1 || HIBYTE(vk) != 0) Fallisci("no plain key for '" + nome + "'");
    return LOBYTE(vk);
}

// One key or chord: all down in order, then all up in reverse.
std::vector<INPUT> Accordo(const std::string &tasti) {
    std::vector<WORD> codici;
    std::istringstream parti(tasti);
    for (std::string parte; std::getline(parti, parte, '+');) codici.push_back(CodiceTasto(parte));
    std::vector<INPUT> eventi;
    for (auto vk : codici) eventi.push_back(Tasto(vk, true));
    for (auto i = codici.rbegin(); i != codici.rend(); ++i) eventi.push_back(Tasto(*i, false));
    return eventi;
}

// Real keys for ASCII, Unicode events for the rest.
std::vector<INPUT> Battute(const std::string &testo) {
    std::vector<INPUT> eventi;
    for (wchar_t c : Largo(testo)) {
        const SHORT vk = c < 128 ? VkKeyScanW(c) : SHORT{-1};
        if (vk != -1 && (HIBYTE(vk) & ~1) == 0) {
            const bool maiuscola = HIBYTE(vk) == 1;
            if (maiuscola) eventi.push_back(Tasto(VK_SHIFT, true));
            eventi.push_back(Tasto(LOBYTE(vk), true));
            eventi.push_back(Tasto(LOBYTE(vk), false));
            if (maiuscola) eventi.push_back(Tasto(VK_SHIFT, false));
            continue;
        }
        INPUT e{};
        e.type = INPUT_KEYBOARD;
        e.ki.wScan = c;
        for (DWORD su : {0UL, static_cast<DWORD>(KEYEVENTF_KEYUP)}) {
            e.ki.dwFlags = KEYEVENTF_UNICODE | su;
            eventi.push_back(e);
        }
    }
    return eventi;
}

// Position and button travel in one event: sent apart, the button may act at the old position.
INPUT Mouse(POINT schermo, DWORD bandiere = 0) {
    const auto scala = [](LONG v, int metrica) {
        return static_cast<LONG>((v * 65536LL + 65535) / GetSystemMetrics(metrica));
    };
    INPUT e{};
    e.type = INPUT_MOUSE;
    e.mi.dx = scala(schermo.x, SM_CXSCREEN);
    e.mi.dy = scala(schermo.y, SM_CYSCREEN);
    e.mi.dwFlags = MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE | bandiere;
    return e;
}

DWORD Giu(Bottone bottone) {
    if (bottone == Bottone::Sinistro) return MOUSEEVENTF_LEFTDOWN;
    return bottone == Bottone::Medio ? MOUSEEVENTF_MIDDLEDOWN : MOUSEEVENTF_RIGHTDOWN;
}

// Each "up" flag is the bit above its "down".
DWORD Su(Bottone bottone) { return Giu(bottone) << 1U; }

void Manda(std::vector<INPUT> eventi) {
    const auto quanti = static_cast<UINT>(eventi.size());
    if (SendInput(quanti, eventi.data(), sizeof(INPUT)) != quanti)
        Fallisci("SendInput refused, error " + std::to_string(GetLastError()));
}

// Sends the first half of its events, and the second half when it goes, whatever happened
// meanwhile.
class Tenuti {
  public:
    explicit Tenuti(std::vector<INPUT> eventi) : dopo_(std::move(eventi)) {
        const auto meta = dopo_.begin() + static_cast<std::ptrdiff_t>(dopo_.size() / 2);
        Manda({dopo_.begin(), meta});
        dopo_.erase(dopo_.begin(), meta);
    }
    ~Tenuti() { SendInput(static_cast<UINT>(dopo_.size()), dopo_.data(), sizeof(INPUT)); }
    Tenuti(const Tenuti &) = delete;
    Tenuti &operator=(const Tenuti &) = delete;

  private:
    std::vector<INPUT> dopo_;
};

} // namespace

std::string Utf8(std::wstring_view testo) {
    const int n = static_cast<int>(testo.size());
    const int lung = WideCharToMultiByte(CP_UTF8, 0, testo.data(), n, nullptr, 0, nullptr, nullptr);
    std::string r(static_cast<std::size_t>(lung), '\0');
    WideCharToMultiByte(CP_UTF8, 0, testo.data(), n, r.data(), lung, nullptr, nullptr);
    return r;
}

std::wstring Largo(std::string_view utf8) {
    const int n = static_cast<int>(utf8.size());
    const int lung = MultiByteToWideChar(CP_UTF8, 0, utf8.data(), n, nullptr, 0);
    std::wstring r(static_cast<std::size_t>(lung), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, utf8.data(), n, r.data(), lung);
    return r;
}

Programma::Programma(const std::wstring &eseguibile, const std::wstring &argomenti, bool ricorda) {
    if (!ricorda) RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\Telva");
    std::wstring riga = L"\"" + eseguibile + L"\" " + argomenti;
    STARTUPINFOW avvio{};
    avvio.cb = sizeof avvio;
    PROCESS_INFORMATION esito{};
    if (!CreateProcessW(eseguibile.c_str(), riga.data(), nullptr, nullptr, FALSE, 0, nullptr,
                        nullptr, &avvio, &esito))
        Fallisci("cannot start " + Utf8(riga) + ", error " + std::to_string(GetLastError()));
    CloseHandle(esito.hThread);
    processo_ = esito.hProcess;
    pid_ = esito.dwProcessId;
    AllowSetForegroundWindow(pid_); // else Windows may keep a new window behind the console
}

Programma::~Programma() {
    if (!Finito()) {
        TerminateProcess(processo_, 99);
        WaitForSingleObject(processo_, limiteMs);
    }
    CloseHandle(processo_);
}

DWORD Programma::AttendiFine() {
    if (WaitForSingleObject(processo_, limiteMs) != WAIT_OBJECT_0)
        Fallisci("waited 20 s for the end of the program; saw " + Stato());
    DWORD codice = 0;
    GetExitCodeProcess(processo_, &codice);
    return codice;
}

std::vector<HWND> Programma::Cime(const std::wstring &classe) const {
    std::vector<HWND> cime;
    OgniFinestra([&](HWND f) {
        DWORD pid = 0;
        GetWindowThreadProcessId(f, &pid);
        if (pid == pid_ && IsWindowVisible(f) && Classe(f).starts_with(classe)) cime.push_back(f);
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
    for (const ULONGLONG fine = GetTickCount64() + limiteMs;; Sleep(sondaggioMs)) {
        const bool finito = Finito(); // asked first, so that what the end brings about still counts
        if (fatto()) return;
        if (finito || GetTickCount64() > fine)
            Fallisci("waited for " + cosa + "; saw " + (visto ? visto() + "; " : "") + Stato());
    }
}

bool Programma::InMenu() const {
    constexpr DWORD menu = GUI_INMENUMODE | GUI_POPUPMENUMODE | GUI_SYSTEMMENUMODE;
    const auto cime = Cime();
    return std::any_of(cime.begin(), cime.end(), [](HWND f) {
        return (Filo(f).flags & menu) != 0 || Classe(f) == L"#32768";
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
        DWORD pid = 0;
        GetWindowThreadProcessId(davanti, &pid);
        return pid == pid_ && Pronta(davanti) ? davanti : nullptr;
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
        return visto && tempo - da >= quieteMs;
    });
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
    Stabile(r.finestra);
    r.titolo = Testo(r.finestra);
    r.testo = Testo(GetDlgItem(r.finestra, 0xFFFF));
    if (HWND icona = FiglioIcona(r.finestra))
        Aspetta("a known icon in the box", [&] { return !(r.icona = NomeIcona(icona)).empty(); });
    return r;
}

Riquadro Programma::ChiudiRiquadro(const std::string &tasto) {
    Riquadro r = AttendiRiquadro();
    Premi(tasto);
    Aspetta("the box '" + r.testo + "' to close",
            [&] { return Finito() || !IsWindowVisible(r.finestra); });
    stabile_ = nullptr;
    return r;
}

HWND Programma::Trova(const std::string &nome) const {
    HWND trovato = nullptr;
    const auto cerca = [&](HWND f) {
        if (NomeControllo(f) == nome) trovato = f;
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

bool Programma::HaFuoco(const std::string &nome) const {
    HWND f = Controllo(nome);
    return Filo(f).hwndFocus == f;
}

RECT Programma::Posizione(const std::string &nome) const {
    HWND f = Controllo(nome);
    RECT r{};
    GetWindowRect(f, &r);
    MapWindowPoints(nullptr, GetAncestor(f, GA_ROOT), reinterpret_cast<POINT *>(&r), 2);
    return r;
}

POINT Programma::Centro(HWND controllo) {
    RECT r{};
    GetClientRect(controllo, &r);
    return {r.right / 2, r.bottom / 2};
}

POINT Programma::CentroBottone(HWND barra, int indice) const {
    // The bar writes the rectangle into memory of its own process.
    void *la = VirtualAllocEx(processo_, nullptr, sizeof(RECT), MEM_COMMIT, PAGE_READWRITE);
    RECT r{};
    const bool letto = la && Chiedi(barra, TB_GETITEMRECT, WPARAM(indice), LPARAM(la)) &&
                       ReadProcessMemory(processo_, la, &r, sizeof r, nullptr);
    if (la) VirtualFreeEx(processo_, la, 0, MEM_RELEASE);
    if (!letto) Fallisci("no tool-bar button " + std::to_string(indice));
    return {(r.left + r.right) / 2, (r.top + r.bottom) / 2};
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
    Stabile();
    Manda(Accordo(tasti));
}

void Programma::Digita(const std::string &testo) {
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

void Programma::Menu(const std::string &apri, const std::string &tasti) {
    Premi(apri);
    Aspetta("the menu of " + apri, [&] { return !Cime(L"#32768").empty(); });
    std::istringstream parti(tasti);
    for (std::string tasto; parti >> tasto;) Manda(Accordo(tasto));
    Aspetta("the menu of " + apri + " to close after " + tasti,
            [&] { return Finito() || !InMenu(); });
    stabile_ = nullptr;
}

POINT Programma::Punta(HWND finestra, POINT dove) {
    ClientToScreen(finestra, &dove);
    HWND cima = GetAncestor(finestra, GA_ROOT);
    Stabile(cima);
    Aspetta("'" + NomeControllo(finestra) + "' not covered at its place on the screen",
            [&] { return GetAncestor(WindowFromPoint(dove), GA_ROOT) == cima; });
    Manda({Mouse(dove)});
    POINT ora{};
    Aspetta("the pointer to arrive",
            [&] { return GetCursorPos(&ora) && ora.x == dove.x && ora.y == dove.y; });
    return dove;
}

void Programma::Clic(HWND finestra, POINT dove, Bottone bottone, int volte) {
    dove = Punta(finestra, dove);
    std::vector<INPUT> eventi;
    for (int i = 0; i < volte; ++i)
        eventi.insert(eventi.end(), {Mouse(dove, Giu(bottone)), Mouse(dove, Su(bottone))});
    Manda(eventi);
}

void Programma::ClicCon(const std::string &modificatori, HWND finestra, POINT dove, Bottone bottone,
                        const std::function<bool()> &effetto) {
    dove = Punta(finestra, dove);
    Sleep(riposoPuntatore);
    const Tenuti tasti(Accordo(modificatori));
    Manda({Mouse(dove, Giu(bottone)), Mouse(dove, Su(bottone))});
    Aspetta("the effect of a click with " + modificatori, effetto);
}

void Programma::Trascina(HWND finestra, POINT da, POINT a, Bottone bottone,
                         const std::function<void()> &inMezzo) {
    da = Punta(finestra, da);
    ClientToScreen(finestra, &a);
    Sleep(riposoPuntatore);
    const Tenuti premuto({Mouse(da, Giu(bottone)), Mouse(a, Su(bottone))});
    for (int passo : {1, 2, 3, 4})
        Manda({Mouse({da.x + (a.x - da.x) * passo / 4, da.y + (a.y - da.y) * passo / 4})});
    Aspetta("the pointer to stay at the far end", [&] { // a late event may have taken it back
        POINT ora{};
        if (GetCursorPos(&ora) && ora.x == a.x && ora.y == a.y) return true;
        Manda({Mouse(a)});
        return false;
    });
    if (inMezzo) inMezzo();
}

void Programma::Rotella(HWND finestra, POINT dove, int scatti) {
    Punta(finestra, dove);
    Sleep(riposoPuntatore);
    INPUT e{};
    e.type = INPUT_MOUSE;
    e.mi.dwFlags = MOUSEEVENTF_WHEEL;
    e.mi.mouseData = static_cast<DWORD>(scatti * WHEEL_DELTA);
    Manda({e});
}

void Programma::Dimensiona(HWND finestra, int larghezza, int altezza) {
    if (!SetWindowPos(finestra, nullptr, 0, 0, larghezza, altezza,
                      SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE))
        Fallisci("the window cannot be resized, error " + std::to_string(GetLastError()));
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
