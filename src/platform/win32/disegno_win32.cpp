#include "platform/win32/disegno_win32.h"

#include "platform/messaggi.h"

#include <windowsx.h>

#include <algorithm>

namespace telva {
namespace {

constexpr const wchar_t *kClasse = L"TelvaDisegno";

// What stands over the picture is put together in strips: a second picture would cost as much as
// the first.
constexpr int kPixelStriscia = 1 << 18;

// A zone of a surface to the same place of the screen, moved by (x, y).
void Copia(HDC dc, const Superficie &s, const ZonaPixel &z, int x, int y) {
    BITMAPINFO info{};
    info.bmiHeader = {
        sizeof(BITMAPINFOHEADER), s.Larghezza(), -z.altezza, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    SetDIBitsToDevice(dc, z.x + x, z.y + y, static_cast<DWORD>(z.larghezza),
                      static_cast<DWORD>(z.altezza), z.x, 0, 0, static_cast<UINT>(z.altezza),
                      s.Riga(z.y), &info, DIB_RGB_COLORS);
}

// The rectangles that wait to be painted; to be asked before the painting begins.
std::vector<ZonaPixel> DaDipingere(HWND hwnd) {
    const HRGN regione = Richiesto(CreateRectRgn(0, 0, 0, 0), "CreateRectRgn");
    GetUpdateRgn(hwnd, regione, FALSE);
    std::vector<char> dati(GetRegionData(regione, 0, nullptr));
    std::vector<ZonaPixel> zone;
    if (GetRegionData(regione, static_cast<DWORD>(dati.size()),
                      reinterpret_cast<RGNDATA *>(dati.data()))) {
        const auto *testa = reinterpret_cast<const RGNDATA *>(dati.data());
        const auto *r = reinterpret_cast<const RECT *>(testa->Buffer);
        for (DWORD k = 0; k < testa->rdh.nCount; ++k, ++r)
            zone.push_back({r->left, r->top, r->right - r->left, r->bottom - r->top});
    }
    DeleteObject(regione);
    return zone;
}

int Tasti(WPARAM w) {
    return ((w & MK_LBUTTON) ? 1 : 0) | ((w & MK_RBUTTON) ? 2 : 0) | ((w & MK_MBUTTON) ? 4 : 0);
}

int Maiuscoli(WPARAM w) {
    return ((w & MK_SHIFT) ? 1 : 0) | ((w & MK_CONTROL) ? 2 : 0) |
           (GetKeyState(VK_MENU) < 0 ? 4 : 0);
}

} // namespace

void DisegnoWin32::Dipingi() const {
    const std::vector<ZonaPixel> zone = DaDipingere(hwnd_);
    PAINTSTRUCT p{};
    const HDC dc = BeginPaint(hwnd_, &p);
    if (!dc) return;
    const Superficie &s = controllo_.Immagine();
    const int l = s.Larghezza(), a = s.Altezza();
    DipingiImmagine(dc, zone);
    RECT client{};
    GetClientRect(hwnd_, &client);
    const auto nero = static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH));
    if (const RECT destra{l, 0, client.right, client.bottom}; l < client.right)
        FillRect(dc, &destra, nero);
    if (const RECT sotto{0, a, client.right, client.bottom}; a < client.bottom)
        FillRect(dc, &sotto, nero);
    if (FacciaScura()) FrameRect(dc, &client, GetSysColorBrush(COLOR_BTNTEXT)); // black on black
    EndPaint(hwnd_, &p);
}

void DisegnoWin32::DipingiImmagine(HDC dc, const std::vector<ZonaPixel> &zone) const {
    const Superficie &s = controllo_.Immagine();
    std::vector<ZonaPixel> strisce;
    for (ZonaPixel z : zone) {
        z.larghezza = std::min(z.larghezza, s.Larghezza() - z.x);
        z.altezza = std::min(z.altezza, s.Altezza() - z.y);
        if (z.larghezza <= 0 || z.altezza <= 0) continue;
        if (!controllo_.ElasticiVisibili()) {
            Copia(dc, s, z, 0, 0);
            continue;
        }
        const int righe = std::max(1, kPixelStriscia / z.larghezza);
        for (int y = 0; y < z.altezza; y += righe)
            strisce.push_back({z.x, z.y + y, z.larghezza, std::min(righe, z.altezza - y)});
    }
    controllo_.ComponiElastici(strisce, [dc](const Superficie &parte, const ZonaPixel &z) {
        Copia(dc, parte, {0, 0, z.larghezza, z.altezza}, z.x, z.y);
    });
}

// All at once: each time the system is told costs more than the pixels do.
void DisegnoWin32::Invalida(const std::vector<ZonaPixel> &zone) const {
    const HRGN regione = Richiesto(CreateRectRgn(0, 0, 0, 0), "CreateRectRgn");
    const HRGN una = Richiesto(CreateRectRgn(0, 0, 0, 0), "CreateRectRgn");
    for (const ZonaPixel &z : zone) {
        SetRectRgn(una, z.x, z.y, z.x + z.larghezza, z.y + z.altezza);
        CombineRgn(regione, regione, una, RGN_OR);
    }
    InvalidateRgn(hwnd_, regione, FALSE);
    DeleteObject(una);
    DeleteObject(regione);
}

// Only where they were and where they are now is painted anew.
void DisegnoWin32::AggiornaElastici() {
    std::vector<ZonaPixel> zone = controllo_.ZoneElastici();
    zone.swap(elastici_);
    zone.insert(zone.end(), elastici_.begin(), elastici_.end());
    Invalida(zone);
}

void DisegnoWin32::Evento(const std::function<void()> &gestore) {
    if (gestore) finestra_.Evento(gestore);
}

void DisegnoWin32::Mouse(const GestoreMouse &gestore, int tasti, WPARAM w, LPARAM l) {
    if (!gestore) return;
    const double x = controllo_.XEvento(controllo_.XDaPixel(GET_X_LPARAM(l)));
    const double y = controllo_.YEvento(controllo_.YDaPixel(GET_Y_LPARAM(l)));
    const int maiuscoli = Maiuscoli(w);
    finestra_.Evento([&] { gestore(tasti, maiuscoli, x, y); });
}

// Where the pointer stands by now, if more of its moves wait right behind this one: each of them
// may cost a picture.
LPARAM DisegnoWin32::PostoPiuRecente(WPARAM w, LPARAM l) const {
    for (MSG m{}; PeekMessageW(&m, nullptr, 0, 0, PM_NOREMOVE) && m.hwnd == hwnd_ &&
                  m.message == WM_MOUSEMOVE && m.wParam == w;) {
        if (!PeekMessageW(&m, hwnd_, WM_MOUSEMOVE, WM_MOUSEMOVE, PM_REMOVE)) break;
        l = m.lParam;
    }
    return l;
}

void DisegnoWin32::Mosso(WPARAM w, LPARAM l) {
    if (!sopra_) { // told once when the pointer leaves
        TRACKMOUSEEVENT avviso{sizeof avviso, TME_LEAVE, hwnd_, 0};
        sopra_ = TrackMouseEvent(&avviso) != FALSE;
    }
    Mouse(controllo_.MouseMove, Tasti(w), w, PostoPiuRecente(w, l));
}

void DisegnoWin32::TastoPremuto(int tasto, WPARAM w, LPARAM l) {
    // A held button keeps the mouse, so that a drag goes on outside the drawing.
    if (tasto == 4) SetCapture(hwnd_);
    Mouse(controllo_.MouseDown, tasto, w, l);
}

void DisegnoWin32::TastoLasciato(int tasto, WPARAM w, LPARAM l) {
    Mouse(controllo_.MouseUp, tasto, w, l);
    if (tasto == 4 && GetCapture() == hwnd_) ReleaseCapture();
}

LRESULT DisegnoWin32::Messaggio(UINT messaggio, WPARAM w, LPARAM l) {
    switch (messaggio) {
    case WM_PAINT: Dipingi(); return 0;
    case WM_ERASEBKGND: return 1;
    case WM_LBUTTONDOWN: TastoPremuto(1, w, l); return 0;
    case WM_RBUTTONDOWN: TastoPremuto(2, w, l); return 0;
    case WM_MBUTTONDOWN: TastoPremuto(4, w, l); return 0;
    case WM_LBUTTONUP: TastoLasciato(1, w, l); return 0;
    case WM_RBUTTONUP: TastoLasciato(2, w, l); return 0;
    case WM_MBUTTONUP: TastoLasciato(4, w, l); return 0;
    case WM_MOUSEMOVE: Mosso(w, l); return 0;
    case WM_MOUSELEAVE:
        sopra_ = false;
        Evento(controllo_.MouseLeave);
        return 0;
    case WM_LBUTTONDBLCLK:
    case WM_RBUTTONDBLCLK:
    case WM_MBUTTONDBLCLK: Evento(controllo_.DblClick); return 0;
    case WM_CAPTURECHANGED: Evento(controllo_.CatturaPersa); return 0;
    default: return DefWindowProcW(hwnd_, messaggio, w, l);
    }
}

LRESULT CALLBACK DisegnoWin32::Procedura(HWND hwnd, UINT messaggio, WPARAM w, LPARAM l) {
    auto *questo = reinterpret_cast<DisegnoWin32 *>(GetWindowLongPtrW(hwnd, GWLP_USERDATA));
    if (!questo) return DefWindowProcW(hwnd, messaggio, w, l);
    LRESULT esito = 0;
    EseguiProtetto([&] { esito = questo->Messaggio(messaggio, w, l); });
    return esito;
}

HWND DisegnoWin32::Crea(const Nascita &nascita) {
    WNDCLASSEXW classe{};
    classe.style = CS_DBLCLKS;
    classe.lpfnWndProc = Procedura;
    classe.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    classe.lpszClassName = kClasse;
    RegistraClasse(classe);
    hwnd_ = nascita.Crea(kClasse, L"Disegno della struttura", 0);
    SetWindowLongPtrW(hwnd_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    return hwnd_;
}

void DisegnoWin32::Mostra(Campo campo) {
    switch (campo) {
    case Campo::Immagine:
        finestra_.ApplicaPosizioni(); // it must have its size before it shows the picture for it
        elastici_ = controllo_.ZoneElastici();
        InvalidateRect(hwnd_, nullptr, FALSE);
        UpdateWindow(hwnd_);
        break;
    case Campo::Elastici: AggiornaElastici(); break;
    case Campo::Puntatore: finestra_.AggiornaPuntatore(); break;
    default: break;
    }
}

} // namespace telva
