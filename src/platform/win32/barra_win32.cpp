#include "platform/win32/barra_win32.h"

#include <algorithm>

namespace telva {
namespace {

constexpr WORD kPrimoBottone = 3000;

// The image list wants plain alpha; our pictures come premultiplied.
std::uint32_t SenzaPremoltiplicare(std::uint32_t pixel) {
    const std::uint32_t alfa = pixel >> 24;
    if (alfa == 0 || alfa == 255) return pixel;
    const auto canale = [&](int bit) {
        return std::min<std::uint32_t>(((pixel >> bit) & 0xFF) * 255 / alfa, 255) << bit;
    };
    return alfa << 24 | canale(16) | canale(8) | canale(0);
}

// Dark strokes on a dark bar are brought half-way to white.
std::uint32_t Leggibile(std::uint32_t pixel, bool barraScura) {
    if (!barraScura || Luce(pixel) >= 128) return pixel;
    return (pixel & 0xFF000000) | ((pixel >> 1 & 0x7F7F7F) + 0x808080);
}

HBITMAP Immagine(std::vector<std::uint32_t> pixel, int lato) {
    const bool barraScura = FacciaScura();
    for (std::uint32_t &p : pixel) p = Leggibile(SenzaPremoltiplicare(p), barraScura);
    return CreaBitmap(pixel, lato, lato);
}

} // namespace

HWND BarraWin32::Crea(const Nascita &nascita) {
    hwnd_ = nascita.Crea(TOOLBARCLASSNAMEW, L"Barra degli strumenti",
                         TBSTYLE_FLAT | TBSTYLE_TOOLTIPS | CCS_NORESIZE | CCS_NODIVIDER |
                             CCS_NOPARENTALIGN);
    SendMessageW(hwnd_, TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON), 0);
    MettiImmagini();
    MettiBottoni();
    return hwnd_;
}

BarraWin32::~BarraWin32() {
    if (immagini_) ImageList_Destroy(immagini_);
}

void BarraWin32::MettiBottoni() const {
    std::vector<TBBUTTON> bottoni;
    int posto = 0;
    for (const BottoneBarra &b : controllo_.Bottoni) {
        TBBUTTON t{};
        if (b.nuovoGruppo) {
            t.fsStyle = BTNS_SEP;
            bottoni.push_back(t);
        }
        t = {};
        t.iBitmap = posto;
        t.idCommand = kPrimoBottone + posto++;
        t.fsState = !b.voce || b.voce->Enabled ? TBSTATE_ENABLED : 0;
        t.fsStyle = BTNS_BUTTON;
        bottoni.push_back(t);
    }
    SendMessageW(hwnd_, TB_ADDBUTTONSW, bottoni.size(), reinterpret_cast<LPARAM>(bottoni.data()));
}

void BarraWin32::MettiImmagini() {
    const auto dpi = static_cast<UINT>(finestra_.Dpi());
    const int lato = static_cast<int>(16 * dpi / 96);
    const HIMAGELIST nuove = Richiesto(
        ImageList_Create(lato, lato, ILC_COLOR32, static_cast<int>(controllo_.Bottoni.size()), 0),
        "ImageList_Create");
    for (const BottoneBarra &b : controllo_.Bottoni) {
        const HBITMAP bitmap = Immagine(controllo_.FiguraBottone(b.chiave, lato), lato);
        if (ImageList_Add(nuove, bitmap, nullptr) < 0) GuastoWindows("ImageList_Add");
        DeleteObject(bitmap);
    }
    SendMessageW(hwnd_, TB_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(nuove));
    const int bordo = static_cast<int>(7 * dpi / 96);
    SendMessageW(hwnd_, TB_SETBUTTONSIZE, 0, MAKELPARAM(lato + bordo, lato + bordo));
    if (immagini_) ImageList_Destroy(immagini_);
    immagini_ = nuove;
}

void BarraWin32::ColoriCambiati() {
    MettiImmagini();
    PariWin32::ColoriCambiati();
}

const BottoneBarra *BarraWin32::Bottone(UINT_PTR id) const {
    const auto posto = static_cast<std::size_t>(id - kPrimoBottone);
    return id >= kPrimoBottone && posto < controllo_.Bottoni.size() ? &controllo_.Bottoni[posto]
                                                                    : nullptr;
}

void BarraWin32::Comando(WORD, WORD id) {
    const BottoneBarra *b = Bottone(id);
    if (!b || !controllo_.ButtonClick) return;
    finestra_.Evento([this, chiave = b->chiave] { controllo_.ButtonClick(chiave); });
}

void BarraWin32::VoceCambiata(const VoceMenu &voce) {
    WPARAM id = kPrimoBottone;
    for (const BottoneBarra &b : controllo_.Bottoni) {
        if (b.voce == &voce)
            SendMessageW(hwnd_, TB_ENABLEBUTTON, id, MAKELPARAM(voce.Enabled(), 0));
        ++id;
    }
}

bool BarraWin32::Notifica(const NMHDR &notifica) {
    const BottoneBarra *b = notifica.code == TTN_GETDISPINFOW ? Bottone(notifica.idFrom) : nullptr;
    if (!b) return false;
    auto &info = reinterpret_cast<NMTTDISPINFOW &>(const_cast<NMHDR &>(notifica));
    suggerimento_ = ALargo(b->suggerimento);
    info.lpszText = suggerimento_.data();
    info.hinst = nullptr;
    return true;
}

} // namespace telva
