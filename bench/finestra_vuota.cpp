// A bare Win32 program: as many native controls as the product's main window has, of the same
// kinds, in the same font, and nothing behind them. What it takes for its first picture, and in
// memory, no program with such a window can do without.
//   finestra_vuota [WIDTHxHEIGHT]
#include <windows.h>

#include <commctrl.h>

#include <cwchar>
#include <initializer_list>

namespace {

constexpr DWORD kFiglio = WS_CHILD | WS_VISIBLE;

struct Genere {
    const wchar_t *classe;
    DWORD stile, esteso;
    int quanti;
};
constexpr Genere kGeneri[] = {
    {L"STATIC", SS_NOPREFIX | SS_NOTIFY | SS_CENTERIMAGE, 0, 27},
    {L"EDIT", ES_AUTOHSCROLL | WS_TABSTOP, WS_EX_CLIENTEDGE, 10},
    {L"BUTTON", BS_AUTOCHECKBOX | WS_TABSTOP, 0, 5},
    {L"BUTTON", BS_AUTORADIOBUTTON, 0, 5},
    {L"BUTTON", BS_PUSHBUTTON | WS_TABSTOP, 0, 3},
    {L"BUTTON", BS_GROUPBOX, 0, 5},
    {L"FinestraVuota", 0, 0, 1}, // the drawing
};
constexpr int kMenu = 7, kVociMenu = 9, kBottoni = 24, kLatoIcona = 16, kSuggerimenti = 40;

// It ends by itself: a WM_QUIT posted from outside may be lost with the window.
LRESULT CALLBACK Procedura(HWND finestra, UINT messaggio, WPARAM w, LPARAM l) {
    if (messaggio == WM_DESTROY && !GetParent(finestra)) PostQuitMessage(0);
    return DefWindowProcW(finestra, messaggio, w, l);
}

HMENU Menu() {
    const HMENU barra = CreateMenu();
    for (int k = 0; k < kMenu; ++k) {
        const HMENU menu = CreatePopupMenu();
        for (int n = 0; n < kVociMenu; ++n)
            AppendMenuW(menu, MF_STRING, static_cast<UINT_PTR>(100 * k + n + 1), L"Voce\tCtrl+V");
        AppendMenuW(barra, MF_POPUP, reinterpret_cast<UINT_PTR>(menu), L"&Menu");
    }
    return barra;
}

HFONT Font() {
    NONCLIENTMETRICSW misure{};
    misure.cbSize = sizeof misure;
    SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof misure, &misure, 0);
    return CreateFontIndirectW(&misure.lfMessageFont);
}

void Barra(HWND finestra, HINSTANCE modulo) {
    const HWND barra =
        CreateWindowExW(0, TOOLBARCLASSNAMEW, L"", kFiglio | TBSTYLE_FLAT | TBSTYLE_TOOLTIPS, 0, 0,
                        0, 0, finestra, nullptr, modulo, nullptr);
    const HIMAGELIST immagini = ImageList_Create(kLatoIcona, kLatoIcona, ILC_COLOR32, kBottoni, 0);
    const HDC schermo = GetDC(nullptr);
    const HBITMAP bitmap = CreateCompatibleBitmap(schermo, kLatoIcona * kBottoni, kLatoIcona);
    ReleaseDC(nullptr, schermo);
    ImageList_Add(immagini, bitmap, nullptr);
    DeleteObject(bitmap);
    SendMessageW(barra, TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON), 0);
    SendMessageW(barra, TB_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(immagini));
    TBBUTTON bottoni[kBottoni]{};
    for (int k = 0; k < kBottoni; ++k) {
        bottoni[k].iBitmap = k;
        bottoni[k].idCommand = 1000 + k;
        bottoni[k].fsState = TBSTATE_ENABLED;
    }
    SendMessageW(barra, TB_ADDBUTTONSW, kBottoni, reinterpret_cast<LPARAM>(bottoni));
    SendMessageW(barra, TB_AUTOSIZE, 0, 0);
}

void Controlli(HWND finestra, HINSTANCE modulo, int larghezza) {
    const HWND tip = CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP, 0, 0, 0, 0,
                                     finestra, nullptr, modulo, nullptr);
    const HFONT font = Font();
    wchar_t testo[] = L"Testo di prova";
    int x = 8, y = 40, tipFatti = 0;
    for (const Genere &g : kGeneri)
        for (int n = 0; n < g.quanti; ++n) {
            const HWND h = CreateWindowExW(g.esteso, g.classe, testo, kFiglio | g.stile, x, y, 80,
                                           22, finestra, nullptr, modulo, nullptr);
            SendMessageW(h, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
            TTTOOLINFOW strumento{};
            strumento.cbSize = sizeof strumento;
            strumento.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
            strumento.hwnd = finestra;
            strumento.uId = reinterpret_cast<UINT_PTR>(h);
            strumento.lpszText = testo;
            if (tipFatti++ < kSuggerimenti)
                SendMessageW(tip, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&strumento));
            x += 88;
            if (x + 88 > larghezza) x = 8, y += 28;
        }
}

void Registra(HINSTANCE modulo) {
    WNDCLASSW classe{};
    classe.lpfnWndProc = Procedura;
    classe.hInstance = modulo;
    classe.hbrBackground = reinterpret_cast<HBRUSH>(static_cast<INT_PTR>(COLOR_BTNFACE + 1));
    classe.lpszClassName = L"FinestraVuota";
    RegisterClassW(&classe);
}

} // namespace

int WINAPI WinMain(HINSTANCE modulo, HINSTANCE, LPSTR, int) {
    int larghezza = 1202, altezza = 830;
    for (const wchar_t *parola = GetCommandLineW();
         (parola = std::wcschr(parola, L' ')) != nullptr;)
        if (std::swscanf(++parola, L"%dx%d", &larghezza, &altezza) == 2) break;
    const INITCOMMONCONTROLSEX comuni{sizeof comuni, ICC_BAR_CLASSES | ICC_STANDARD_CLASSES};
    InitCommonControlsEx(&comuni);
    Registra(modulo);
    const HWND finestra =
        CreateWindowExW(0, L"FinestraVuota", L"Vuota", WS_OVERLAPPEDWINDOW, CW_USEDEFAULT,
                        CW_USEDEFAULT, larghezza, altezza, nullptr, Menu(), modulo, nullptr);
    if (!finestra) return 1;
    Barra(finestra, modulo);
    Controlli(finestra, modulo, larghezza);
    ShowWindow(finestra, SW_SHOWDEFAULT);
    UpdateWindow(finestra);
    MSG m{};
    while (GetMessageW(&m, nullptr, 0, 0) > 0) DispatchMessageW(&m);
    return 0;
}
