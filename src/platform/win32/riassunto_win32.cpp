#include "platform/win32/riassunto_win32.h"

#include "platform/messaggi.h"

namespace telva {
namespace {

constexpr const wchar_t *kClasse = L"TelvaRiassunto";
constexpr int kMargine = 5; // pixels, the frame among them

// Another program may be looking into the clipboard right now.
bool ApriAppunti(HWND finestra) {
    constexpr int kTentativi = 10;
    for (int n = 0; n < kTentativi; ++n) {
        if (OpenClipboard(finestra)) return true;
        Sleep(20);
    }
    return false;
}

} // namespace

void RiassuntoWin32::Dipingi() const {
    PAINTSTRUCT p{};
    const HDC dc = BeginPaint(hwnd_, &p);
    if (!dc) return;
    RECT r{};
    GetClientRect(hwnd_, &r);
    FillRect(dc, &r, GetSysColorBrush(COLOR_WINDOW));
    FrameRect(dc, &r, GetSysColorBrush(COLOR_BTNSHADOW)); // flat, as the text boxes' are
    const HGDIOBJ prima = SelectObject(dc, font_);
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, GetSysColor(COLOR_WINDOWTEXT));
    RECT dentro = r;
    InflateRect(&dentro, -kMargine, 0);
    const std::wstring testo =
        InUnaRiga(dc, ALargo(Testo()), static_cast<int>(dentro.right - dentro.left));
    DrawTextW(dc, testo.c_str(), static_cast<int>(testo.size()), &dentro,
              DT_SINGLELINE | DT_VCENTER | DT_LEFT | DT_NOPREFIX);
    SelectObject(dc, prima);
    if (GetFocus() == hwnd_) {
        InflateRect(&r, -2, -2);
        DrawFocusRect(dc, &r);
    }
    EndPaint(hwnd_, &p);
}

// The whole, not only what is shown.
void RiassuntoWin32::Copia() const {
    const std::wstring testo = ALargo(controllo_.Caption());
    const SIZE_T byte = (testo.size() + 1) * sizeof(wchar_t);
    if (testo.empty() || !ApriAppunti(hwnd_)) return;
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

// True when the whole text does not fit into the field.
bool RiassuntoWin32::Tagliato() const {
    const std::string mostrato = Testo();
    if (mostrato.size() < controllo_.Caption().size()) return true;
    const std::wstring testo = ALargo(mostrato);
    const HDC dc = GetDC(hwnd_);
    if (!dc) return false;
    const HGDIOBJ prima = SelectObject(dc, font_);
    SIZE misura{};
    GetTextExtentPoint32W(dc, testo.c_str(), static_cast<int>(testo.size()), &misura);
    SelectObject(dc, prima);
    ReleaseDC(hwnd_, dc);
    RECT r{};
    GetClientRect(hwnd_, &r);
    return misura.cx > r.right - 2 * kMargine;
}

LRESULT RiassuntoWin32::Messaggio(UINT messaggio, WPARAM w, LPARAM l) {
    switch (messaggio) {
    case WM_PAINT: Dipingi(); return 0;
    case WM_ERASEBKGND: return 1;
    case WM_SETFONT: font_ = reinterpret_cast<HFONT>(w); break;
    case WM_GETFONT: return reinterpret_cast<LRESULT>(font_);
    case WM_SETTEXT:
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
    case WM_SIZE: InvalidateRect(hwnd_, nullptr, FALSE); break;
    case WM_LBUTTONDOWN: SetFocus(hwnd_); return 0;
    case WM_COPY: Copia(); return 0;
    case WM_KEYDOWN:
        if (w == 'C' && GetKeyState(VK_CONTROL) < 0) Copia();
        return 0;
    default: break;
    }
    return DefWindowProcW(hwnd_, messaggio, w, l);
}

LRESULT CALLBACK RiassuntoWin32::Procedura(HWND hwnd, UINT messaggio, WPARAM w, LPARAM l) {
    auto *questo = reinterpret_cast<RiassuntoWin32 *>(GetWindowLongPtrW(hwnd, GWLP_USERDATA));
    if (!questo) return DefWindowProcW(hwnd, messaggio, w, l);
    LRESULT esito = 0;
    EseguiProtetto([&] { esito = questo->Messaggio(messaggio, w, l); });
    return esito;
}

HWND RiassuntoWin32::Crea(const Nascita &nascita) {
    WNDCLASSEXW classe{};
    classe.lpfnWndProc = Procedura;
    classe.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    classe.lpszClassName = kClasse;
    RegistraClasse(classe);
    hwnd_ = nascita.Crea(kClasse, ALargo(Testo()), WS_TABSTOP);
    SetWindowLongPtrW(hwnd_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    return hwnd_;
}

void RiassuntoWin32::Mostra(Campo campo) {
    if (campo != Campo::Didascalia) return;
    if (MostraTesto(hwnd_, Testo())) InvalidateRect(hwnd_, nullptr, TRUE);
    AggiornaSuggerimento();
}

std::wstring RiassuntoWin32::TestoSuggerito() const {
    if (!Tagliato()) return EtichettaWin32::TestoSuggerito();
    return ALargo(ElencoInRighe(Mostrabile(controllo_.Caption(), kCaratteriSuggerimento),
                                kColonneSuggerimento, kRigheSuggerimento, "… Ctrl+C copia tutto"));
}

} // namespace telva
