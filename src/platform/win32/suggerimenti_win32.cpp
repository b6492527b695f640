#include "platform/win32/suggerimenti_win32.h"

#include <utility>

namespace telva {

namespace {

constexpr LPARAM kMillisecondi = 30000; // a long list takes its time to be read
constexpr int kLarghezza = 600;         // pixels at 100 %

} // namespace

void SuggerimentiWin32::Crea(HWND finestra) {
    finestra_ = finestra;
    hwnd_ = Richiesto(CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr,
                                      WS_POPUP | TTS_NOPREFIX | TTS_ALWAYSTIP, 0, 0, 0, 0, finestra,
                                      nullptr, GetModuleHandleW(nullptr), nullptr),
                      "CreateWindowEx(tooltips_class32)");
    SendMessageW(hwnd_, TTM_SETDELAYTIME, TTDT_AUTOPOP, kMillisecondi);
}

void SuggerimentiWin32::Adegua(HFONT font, double dpi) const {
    SendMessageW(hwnd_, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
    SendMessageW(hwnd_, TTM_SETMAXTIPWIDTH, 0, MulDiv(kLarghezza, static_cast<int>(dpi), 96));
}

void SuggerimentiWin32::Imposta(HWND nativo, std::wstring testo) {
    TTTOOLINFOW strumento{};
    strumento.cbSize = sizeof strumento;
    strumento.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
    strumento.hwnd = finestra_;
    strumento.uId = reinterpret_cast<UINT_PTR>(nativo);
    const auto dati = reinterpret_cast<LPARAM>(&strumento);
    const bool prima = testi_.contains(nativo);
    if (testo.empty()) {
        if (prima) SendMessageW(hwnd_, TTM_DELTOOLW, 0, dati);
        testi_.erase(nativo);
        return;
    }
    std::wstring &suo = testi_[nativo] = std::move(testo);
    strumento.lpszText = suo.data();
    SendMessageW(hwnd_, prima ? TTM_UPDATETIPTEXTW : TTM_ADDTOOLW, 0, dati);
}

} // namespace telva
