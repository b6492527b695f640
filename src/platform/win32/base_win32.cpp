#include "platform/win32/base_win32.h"

#include "platform/guasto.h"

#include <algorithm>

namespace telva {

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

bool MostraTesto(HWND finestra, const std::string &testo) {
    if (TestoFinestra(finestra) == testo) return false;
    SetWindowTextW(finestra, ALargo(testo).c_str());
    return true;
}

std::wstring InUnaRiga(HDC dc, const std::wstring &testo, int larghezza) {
    const int lunghezza = static_cast<int>(testo.size());
    SIZE tutto{}, puntini{};
    GetTextExtentPoint32W(dc, testo.c_str(), lunghezza, &tutto);
    if (tutto.cx <= larghezza) return testo;
    GetTextExtentPoint32W(dc, L"…", 1, &puntini);
    int stanno = 0;
    GetTextExtentExPointW(dc, testo.c_str(), lunghezza,
                          std::max(larghezza - static_cast<int>(puntini.cx), 0), &stanno, nullptr,
                          &tutto);
    const auto mostrato = std::wstring_view(testo).substr(0, static_cast<std::size_t>(stanno));
    const std::size_t virgola = mostrato.rfind(L',');
    return std::wstring(mostrato, 0, virgola == mostrato.npos ? virgola : virgola + 1) + L"…";
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

void RegistraClasse(WNDCLASSEXW classe) {
    classe.cbSize = sizeof classe;
    classe.hInstance = GetModuleHandleW(nullptr);
    if (!RegisterClassExW(&classe) && GetLastError() != ERROR_CLASS_ALREADY_EXISTS)
        GuastoWindows("RegisterClassEx");
}

void CambiaStile(HWND finestra, LONG_PTR stile, bool acceso) {
    const LONG_PTR attuale = GetWindowLongPtrW(finestra, GWL_STYLE);
    SetWindowLongPtrW(finestra, GWL_STYLE, acceso ? attuale | stile : attuale & ~stile);
}

int Luce(std::uint32_t rgb) {
    return static_cast<int>(((rgb >> 16 & 0xFF) + 2 * (rgb >> 8 & 0xFF) + (rgb & 0xFF)) / 4);
}

bool FacciaScura() { return Luce(GetSysColor(COLOR_BTNFACE)) < 128; }

HBITMAP CreaBitmap(const std::vector<std::uint32_t> &pixel, int larghezza, int altezza) {
    BITMAPINFO info{};
    info.bmiHeader = {sizeof(BITMAPINFOHEADER), larghezza, -altezza, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void *bit = nullptr;
    const HBITMAP bitmap = Richiesto(
        CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bit, nullptr, 0), "CreateDIBSection");
    std::copy(pixel.begin(), pixel.end(), static_cast<std::uint32_t *>(bit));
    return bitmap;
}

void AssegnaNome(HWND finestra, const std::string &nome) {
    const ATOM atomo = GlobalAddAtomW(ALargo(nome).c_str());
    if (atomo)
        SetPropW(finestra, L"TelvaNome", reinterpret_cast<HANDLE>(static_cast<ULONG_PTR>(atomo)));
}

void TogliNome(HWND finestra) {
    const HANDLE atomo = RemovePropW(finestra, L"TelvaNome");
    if (atomo) GlobalDeleteAtom(static_cast<ATOM>(reinterpret_cast<ULONG_PTR>(atomo)));
}

} // namespace telva
