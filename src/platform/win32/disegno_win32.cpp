#include "platform/win32/disegno_win32.h"

#include "platform/messaggi.h"
#include "platform/win32/finestra_win32.h"

#include <windowsx.h>

#include <algorithm>

namespace telva {
namespace {

constexpr const wchar_t *kClasse = L"TelvaDisegno";

void Copia(HDC dc, const Superficie &s, int y) {
    const int l = s.Larghezza(), a = s.Altezza();
    BITMAPINFO info{};
    info.bmiHeader = {sizeof(BITMAPINFOHEADER), l, -a, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    SetDIBitsToDevice(dc, 0, y, static_cast<DWORD>(l), static_cast<DWORD>(a), 0, 0, 0,
                      static_cast<UINT>(a), s.Riga(0), &info, DIB_RGB_COLORS);
}

void Dipingi(HWND hwnd, const RiquadroDisegno &disegno) {
    PAINTSTRUCT p{};
    const HDC dc = BeginPaint(hwnd, &p);
    if (!dc) return;
    const Superficie &s = disegno.Immagine();
    const int l = s.Larghezza(), a = s.Altezza();
    if (l > 0 && !disegno.ElasticiVisibili()) Copia(dc, s, 0);
    if (l > 0 && disegno.ElasticiVisibili()) {
        constexpr int kRighe = 64; // in strips: a second picture would cost as much as the first
        static Superficie striscia;
        for (int y = 0; y < a; y += kRighe) {
            disegno.ComponiElastici(striscia, y, std::min(kRighe, a - y));
            Copia(dc, striscia, y);
        }
    }
    RECT client{};
    GetClientRect(hwnd, &client);
    const auto nero = static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH));
    if (const RECT destra{l, 0, client.right, client.bottom}; l < client.right)
        FillRect(dc, &destra, nero);
    if (const RECT sotto{0, a, client.right, client.bottom}; a < client.bottom)
        FillRect(dc, &sotto, nero);
    if (FacciaScura()) FrameRect(dc, &client, GetSysColorBrush(COLOR_BTNTEXT)); // black on black
    EndPaint(hwnd, &p);
}

int Tasti(WPARAM w) {
    return ((w & MK_LBUTTON) ? 1 : 0) | ((w & MK_RBUTTON) ? 2 : 0) | ((w & MK_MBUTTON) ? 4 : 0);
}

int Maiuscoli(WPARAM w) {
    return ((w & MK_SHIFT) ? 1 : 0) | ((w & MK_CONTROL) ? 2 : 0) |
           (GetKeyState(VK_MENU) < 0 ? 4 : 0);
}

using GestoreMouse = std::function<void(int, int, float, float)>;

void Mouse(const RiquadroDisegno &d, const GestoreMouse &gestore, int tasti, WPARAM w, LPARAM l) {
    if (!gestore) return;
    const auto x = static_cast<float>(d.XDaPixel(GET_X_LPARAM(l)));
    const auto y = static_cast<float>(d.YDaPixel(GET_Y_LPARAM(l)));
    gestore(tasti, Maiuscoli(w), x, y);
}

void TastoPremuto(HWND hwnd, const RiquadroDisegno &d, int tasto, WPARAM w, LPARAM l) {
    // A held button keeps the mouse, so that a drag goes on outside the drawing.
    if (tasto == 4) SetCapture(hwnd);
    Mouse(d, d.MouseDown, tasto, w, l);
}

LRESULT Tratta(HWND hwnd, UINT messaggio, WPARAM w, LPARAM l) {
    auto *d = reinterpret_cast<RiquadroDisegno *>(GetWindowLongPtrW(hwnd, GWLP_USERDATA));
    if (!d) return DefWindowProcW(hwnd, messaggio, w, l);
    switch (messaggio) {
    case WM_PAINT: Dipingi(hwnd, *d); return 0;
    case WM_ERASEBKGND: return 1;
    case WM_LBUTTONDOWN: TastoPremuto(hwnd, *d, 1, w, l); return 0;
    case WM_RBUTTONDOWN: TastoPremuto(hwnd, *d, 2, w, l); return 0;
    case WM_MBUTTONDOWN: TastoPremuto(hwnd, *d, 4, w, l); return 0;
    case WM_LBUTTONUP: Mouse(*d, d->MouseUp, 1, w, l); return 0;
    case WM_RBUTTONUP: Mouse(*d, d->MouseUp, 2, w, l); return 0;
    case WM_MBUTTONUP:
        Mouse(*d, d->MouseUp, 4, w, l);
        if (GetCapture() == hwnd) ReleaseCapture();
        return 0;
    case WM_MOUSEMOVE: Mouse(*d, d->MouseMove, Tasti(w), w, l); return 0;
    case WM_LBUTTONDBLCLK:
    case WM_RBUTTONDBLCLK:
    case WM_MBUTTONDBLCLK:
        if (d->DblClick) d->DblClick();
        return 0;
    case WM_CAPTURECHANGED:
        if (d->CatturaPersa) d->CatturaPersa();
        return 0;
    default: return DefWindowProcW(hwnd, messaggio, w, l);
    }
}

LRESULT CALLBACK Procedura(HWND hwnd, UINT messaggio, WPARAM w, LPARAM l) {
    LRESULT esito = 0;
    EseguiProtetto([&] { esito = Tratta(hwnd, messaggio, w, l); });
    return esito;
}

} // namespace

void RegistraDisegno() {
    WNDCLASSEXW classe{};
    classe.cbSize = sizeof classe;
    classe.style = CS_DBLCLKS;
    classe.lpfnWndProc = Procedura;
    classe.hInstance = GetModuleHandleW(nullptr);
    classe.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    classe.lpszClassName = kClasse;
    Richiesto(RegisterClassExW(&classe), "RegisterClassEx");
}

HWND CreaDisegno(RiquadroDisegno &disegno, const Nascita &nascita) {
    const HWND hwnd = nascita.Crea(kClasse, L"Disegno della struttura", 0);
    SetWindowLongPtrW(hwnd, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(&disegno));
    return hwnd;
}

void MostraImmagine(HWND disegno) {
    InvalidateRect(disegno, nullptr, FALSE);
    UpdateWindow(disegno);
}

void MostraElastici(HWND disegno) { InvalidateRect(disegno, nullptr, FALSE); }

} // namespace telva
