// An empty Win32 window: what any program pays before its first picture.
#include <windows.h>

int WINAPI WinMain(HINSTANCE modulo, HINSTANCE, LPSTR, int) {
    WNDCLASSW classe{};
    classe.lpfnWndProc = DefWindowProcW;
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
