// An empty Win32 window: what any program pays before its first picture.
#include <windows.h>

// It ends by itself: a WM_QUIT posted from outside may be lost with the window.
LRESULT CALLBACK Procedura(HWND finestra, UINT messaggio, WPARAM w, LPARAM l) {
    if (messaggio == WM_DESTROY) PostQuitMessage(0);
    return DefWindowProcW(finestra, messaggio, w, l);
}

int WINAPI WinMain(HINSTANCE modulo, HINSTANCE, LPSTR, int) {
    WNDCLASSW classe{};
    classe.lpfnWndProc = Procedura;
    classe.hInstance = modulo;
    classe.hbrBackground = reinterpret_cast<HBRUSH>(static_cast<INT_PTR>(COLOR_BTNFACE + 1));
    classe.lpszClassName = L"FinestraVuota";
    if (!RegisterClassW(&classe)) return 1;
    const HWND finestra =
        CreateWindowExW(0, classe.lpszClassName, L"Vuota", WS_OVERLAPPEDWINDOW, CW_USEDEFAULT,
                        CW_USEDEFAULT, 1000, 760, nullptr, nullptr, modulo, nullptr);
    if (!finestra) return 1;
    ShowWindow(finestra, SW_SHOWDEFAULT);
    UpdateWindow(finestra);
    MSG m{};
    while (GetMessageW(&m, nullptr, 0, 0) > 0) DispatchMessageW(&m);
    return 0;
}
