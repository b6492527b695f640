#include "platform/win32/base_win32.h"

#include "platform/guasto.h"
#include "platform/numeri.h"

#include <algorithm>

namespace telva {
namespace {

// Newer functions of the system, looked up so that the program starts on older Windows too.
template <class F>
F Cerca(const wchar_t *libreria, const char *nome) {
    const HMODULE modulo = LoadLibraryExW(libreria, nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
    if (!modulo) return nullptr;
    return reinterpret_cast<F>(reinterpret_cast<void *>(GetProcAddress(modulo, nome)));
}

UINT DpiDiSistema() {
    const HDC schermo = GetDC(nullptr);
    if (!schermo) return 96;
    const int dpi = GetDeviceCaps(schermo, LOGPIXELSX);
    ReleaseDC(nullptr, schermo);
    return dpi > 0 ? static_cast<UINT>(dpi) : 96;
}

} // namespace

std::wstring ALargo(std::string_view utf8) {
    const int byte = static_cast<int>(utf8.size());
    const int n = MultiByteToWideChar(CP_UTF8, 0, utf8.data(), byte, nullptr, 0);
    std::wstring largo(static_cast<std::size_t>(n), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, utf8.data(), byte, largo.data(), n);
    return largo;
}

std::string DaLargo(std::wstring_view largo) {
    const int unita = static_cast<int>(largo.size());
    const int n =
        WideCharToMultiByte(CP_UTF8, 0, largo.data(), unita, nullptr, 0, nullptr, nullptr);
    std::string utf8(static_cast<std::size_t>(n), '\0');
    WideCharToMultiByte(CP_UTF8, 0, largo.data(), unita, utf8.data(), n, nullptr, nullptr);
    return utf8;
}

std::string TestoFinestra(HWND finestra) {
    const int lunghezza = GetWindowTextLengthW(finestra);
    std::wstring testo(static_cast<std::size_t>(lunghezza) + 1, L'\0');
    const int letti = GetWindowTextW(finestra, testo.data(), lunghezza + 1);
    return DaLargo(std::wstring_view(testo).substr(0, static_cast<std::size_t>(letti)));
}

void GuastoWindows(const char *chiamata) {
    throw Guasto("Chiamata di sistema non riuscita: " + std::string(chiamata) + " (errore " +
                 std::to_string(GetLastError()) + ")");
}

HWND Nascita::Crea(const wchar_t *classe, const std::wstring &testo, DWORD altroStile,
                   DWORD esteso) const {
    return Richiesto(CreateWindowExW(esteso, classe, testo.c_str(),
                                     WS_CHILD | WS_CLIPSIBLINGS | stile | altroStile, dove.left,
                                     dove.top, dove.right - dove.left, dove.bottom - dove.top,
                                     genitore, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)),
                                     GetModuleHandleW(nullptr), nullptr),
                     "CreateWindowEx");
}

UINT DpiDi(HWND finestra) {
    using Funzione = UINT(WINAPI *)(HWND);
    static const auto dpiFinestra = Cerca<Funzione>(L"user32.dll", "GetDpiForWindow");
    const UINT dpi = finestra && dpiFinestra ? dpiFinestra(finestra) : 0;
    return dpi > 0 ? dpi : DpiDiSistema();
}

SIZE MisuraEsterna(SIZE interna, DWORD stile, DWORD stileEsteso, bool menu, UINT dpi) {
    using Funzione = BOOL(WINAPI *)(RECT *, DWORD, BOOL, DWORD, UINT);
    static const auto perDpi = Cerca<Funzione>(L"user32.dll", "AdjustWindowRectExForDpi");
    RECT r{0, 0, interna.cx, interna.cy};
    if (!perDpi || !perDpi(&r, stile, menu, stileEsteso, dpi))
        Richiesto(AdjustWindowRectEx(&r, stile, menu, stileEsteso), "AdjustWindowRectEx");
    return {r.right - r.left, r.bottom - r.top};
}

RECT RettangoloVisibile(HWND finestra) {
    using Funzione = HRESULT(WINAPI *)(HWND, DWORD, void *, DWORD);
    static const auto attributo = Cerca<Funzione>(L"dwmapi.dll", "DwmGetWindowAttribute");
    constexpr DWORD kBordiEstesi = 9; // DWMWA_EXTENDED_FRAME_BOUNDS
    RECT visibile{}, intero{};
    if (!GetWindowRect(finestra, &intero)) return intero;
    const bool trovato =
        attributo && SUCCEEDED(attributo(finestra, kBordiEstesi, &visibile, sizeof visibile));
    return trovato && visibile.right > visibile.left ? visibile : intero;
}

int Luce(std::uint32_t rgb) {
    return static_cast<int>(((rgb >> 16 & 0xFF) + 2 * (rgb >> 8 & 0xFF) + (rgb & 0xFF)) / 4);
}

bool FacciaScura() { return Luce(GetSysColor(COLOR_BTNFACE)) < 128; }

void AssegnaNome(HWND finestra, const std::string &nome) {
    const ATOM atomo = GlobalAddAtomW(ALargo(nome).c_str());
    if (atomo)
        SetPropW(finestra, L"TelvaNome", reinterpret_cast<HANDLE>(static_cast<ULONG_PTR>(atomo)));
}

void TogliNome(HWND finestra) {
    const HANDLE atomo = RemovePropW(finestra, L"TelvaNome");
    if (atomo) GlobalDeleteAtom(static_cast<ATOM>(reinterpret_cast<ULONG_PTR>(atomo)));
}

RECT AreaDiLavoro(const RECT &r) {
    MONITORINFO info{};
    info.cbSize = sizeof info;
    return GetMonitorInfoW(MonitorFromRect(&r, MONITOR_DEFAULTTONEAREST), &info) ? info.rcWork : r;
}

void PortaNelloSchermo(RECT &r) {
    const RECT area = AreaDiLavoro(r);
    const LONG l = std::min(r.right - r.left, area.right - area.left);
    const LONG a = std::min(r.bottom - r.top, area.bottom - area.top);
    r.left = std::clamp(r.left, area.left, area.right - l);
    r.top = std::clamp(r.top, area.top, area.bottom - a);
    r.right = r.left + l;
    r.bottom = r.top + a;
}

} // namespace telva
