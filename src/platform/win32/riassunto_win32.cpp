#include "platform/win32/riassunto_win32.h"

namespace telva {
namespace {

constexpr const wchar_t *kClasse = L"TelvaRiassunto";
constexpr int kMargine = 4;
// What lies beyond the field cannot be seen: the system need not measure a megabyte of list.
constexpr std::size_t kMassimo = 4000;

std::wstring Testo(HWND hwnd) { return ALargo(TestoFinestra(hwnd)); }

HFONT Font(HWND hwnd) { return reinterpret_cast<HFONT>(GetWindowLongPtrW(hwnd, GWLP_USERDATA)); }

void Dipingi(HWND hwnd) {
    PAINTSTRUCT p{};
    const HDC dc = BeginPaint(hwnd, &p);
    if (!dc) return;
    RECT r{};
    GetClientRect(hwnd, &r);
    FillRect(dc, &r, GetSysColorBrush(COLOR_WINDOW));
    const HGDIOBJ prima = SelectObject(dc, Font(hwnd));
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, GetSysColor(COLOR_WINDOWTEXT));
    RECT dentro = r;
    InflateRect(&dentro, -kMargine, 0);
    std::wstring testo = Testo(hwnd);
    if (testo.size() > kMassimo) testo.resize(kMassimo);
    DrawTextW(dc, testo.c_str(), static_cast<int>(testo.size()), &dentro,
              DT_SINGLELINE | DT_VCENTER | DT_LEFT | DT_NOPREFIX | DT_END_ELLIPSIS);
    SelectObject(dc, prima);
    if (GetFocus() == hwnd) {
        InflateRect(&r, -1, -1);
        DrawFocusRect(dc, &r);
    }
    EndPaint(hwnd, &p);
}

void Copia(HWND hwnd) {
    const std::wstring testo = Testo(hwnd);
    const SIZE_T byte = (testo.size() + 1) * sizeof(wchar_t);
    if (testo.empty() || !OpenClipboard(hwnd)) return;
    EmptyClipboard();
    if (const HGLOBAL blocco = GlobalAlloc(GMEM_MOVEABLE, byte)) {
        if (void *dove = GlobalLock(blocco)) {
            CopyMemory(dove, testo.c_str(), byte);
            GlobalUnlock(blocco);
        }
        if (!SetClipboardData(CF_UNICODETEXT, blocco)) GlobalFree(blocco);
    }
    CloseClipboard();
}

LRESULT CALLBACK Procedura(HWND hwnd, UINT messaggio, WPARAM w, LPARAM l) {
    switch (messaggio) {
    case WM_PAINT: Dipingi(hwnd); return 0;
    case WM_ERASEBKGND: return 1;
    case WM_SETFONT: SetWindowLongPtrW(hwnd, GWLP_USERDATA, static_cast<LONG_PTR>(w)); break;
    case WM_GETFONT: return GetWindowLongPtrW(hwnd, GWLP_USERDATA);
    case WM_SETTEXT:
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
    case WM_SIZE: InvalidateRect(hwnd, nullptr, FALSE); break;
    case WM_LBUTTONDOWN: SetFocus(hwnd); return 0;
    case WM_COPY: Copia(hwnd); return 0;
    case WM_KEYDOWN:
        if (w == 'C' && GetKeyState(VK_CONTROL) < 0) Copia(hwnd);
        return 0;
    default: break;
    }
    return DefWindowProcW(hwnd, messaggio, w, l);
}

// A list has no blanks to break lines at: a tip breaks it after commas.
std::wstring SpezzaElenco(std::wstring_view elenco) {
    constexpr std::size_t kColonne = 90;
    std::wstring righe;
    std::size_t colonna = 0;
    for (const wchar_t c : elenco) {
        righe += c;
        if (c == L',' && ++colonna > kColonne) {
            righe += L"\r\n";
            colonna = 0;
        } else {
            ++colonna;
        }
    }
    return righe;
}

// True when the whole text does not fit into the field.
bool Tagliato(HWND hwnd) {
    const std::wstring testo = Testo(hwnd);
    if (testo.size() > kMassimo) return true;
    const HDC dc = GetDC(hwnd);
    if (!dc) return false;
    const HGDIOBJ prima = SelectObject(dc, Font(hwnd));
    SIZE misura{};
    GetTextExtentPoint32W(dc, testo.c_str(), static_cast<int>(testo.size()), &misura);
    SelectObject(dc, prima);
    ReleaseDC(hwnd, dc);
    RECT r{};
    GetClientRect(hwnd, &r);
    return misura.cx > r.right - 2 * kMargine;
}

} // namespace

HWND RiassuntoWin32::Crea(const Nascita &nascita) {
    WNDCLASSEXW classe{};
    classe.lpfnWndProc = Procedura;
    classe.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    classe.lpszClassName = kClasse;
    RegistraClasse(classe);
    return nascita.Crea(kClasse, ALargo(controllo_.Caption()), WS_TABSTOP, WS_EX_STATICEDGE);
}

void RiassuntoWin32::Mostra(Campo campo) {
    if (campo != Campo::Didascalia || !MostraTesto(hwnd_, controllo_.Caption)) return;
    InvalidateRect(hwnd_, nullptr, TRUE);
    AggiornaSuggerimento();
}

std::wstring RiassuntoWin32::TestoSuggerito() const {
    return Tagliato(hwnd_) ? SpezzaElenco(ALargo(controllo_.Caption()))
                           : EtichettaWin32::TestoSuggerito();
}

} // namespace telva
