#include "platform/win32/barra_win32.h"

#include <algorithm>
#include <cstring>

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

HBITMAP Immagine(const std::vector<std::uint32_t> &pixel, int lato) {
    BITMAPINFO info{};
    info.bmiHeader = {sizeof(BITMAPINFOHEADER), lato, -lato, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void *bit = nullptr;
    const HBITMAP bitmap = Richiesto(
        CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bit, nullptr, 0), "CreateDIBSection");
    auto *dove = static_cast<std::uint32_t *>(bit);
    const bool barraScura = FacciaScura();
    for (std::uint32_t p : pixel) *dove++ = Leggibile(SenzaPremoltiplicare(p), barraScura);
    return bitmap;
}

} // namespace

BarraWin32::BarraWin32(BarraStrumenti &barra, const Nascita &nascita, UINT dpi) : barra_(barra) {
    hwnd_ = nascita.Crea(TOOLBARCLASSNAMEW, L"Barra degli strumenti",
                         TBSTYLE_FLAT | TBSTYLE_TOOLTIPS | CCS_NORESIZE | CCS_NODIVIDER |
                             CCS_NOPARENTALIGN);
    SendMessageW(hwnd_, TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON), 0);
    ImpostaDpi(dpi);
    std::vector<TBBUTTON> bottoni;
    int posto = 0;
    for (const BottoneBarra &b : barra.Bottoni) {
        TBBUTTON t{};
        if (b.nuovoGruppo) {
            t.fsStyle = BTNS_SEP;
            bottoni.push_back(t);
        }
        t = {};
        t.iBitmap = posto;
        t.idCommand = kPrimoBottone + posto++;
        t.fsState = TBSTATE_ENABLED;
        t.fsStyle = BTNS_BUTTON;
        bottoni.push_back(t);
    }
    SendMessageW(hwnd_, TB_ADDBUTTONSW, bottoni.size(), reinterpret_cast<LPARAM>(bottoni.data()));
    AggiornaAbilitati();
}

BarraWin32::~BarraWin32() {
    if (immagini_) ImageList_Destroy(immagini_);
}

void BarraWin32::ImpostaDpi(UINT dpi) {
    const int lato = static_cast<int>(16 * dpi / 96);
    const HIMAGELIST nuove = Richiesto(
        ImageList_Create(lato, lato, ILC_COLOR32, static_cast<int>(barra_.Bottoni.size()), 0),
        "ImageList_Create");
    for (const BottoneBarra &b : barra_.Bottoni) {
        const HBITMAP bitmap = Immagine(barra_.Icona(b.chiave, lato), lato);
        if (ImageList_Add(nuove, bitmap, nullptr) < 0) GuastoWindows("ImageList_Add");
        DeleteObject(bitmap);
    }
    SendMessageW(hwnd_, TB_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(nuove));
    const int bordo = static_cast<int>(7 * dpi / 96);
    SendMessageW(hwnd_, TB_SETBUTTONSIZE, 0, MAKELPARAM(lato + bordo, lato + bordo));
    if (immagini_) ImageList_Destroy(immagini_);
    immagini_ = nuove;
}

const BottoneBarra *BarraWin32::Bottone(WORD id) const {
    const auto posto = static_cast<std::size_t>(id - kPrimoBottone);
    return id >= kPrimoBottone && posto < barra_.Bottoni.size() ? &barra_.Bottoni[posto] : nullptr;
}

void BarraWin32::AggiornaAbilitati() const {
    WPARAM id = kPrimoBottone;
    for (const BottoneBarra &b : barra_.Bottoni)
        SendMessageW(hwnd_, TB_ENABLEBUTTON, id++, MAKELPARAM(!b.voce || b.voce->Enabled, 0));
}

void BarraWin32::Suggerimento(NMTTDISPINFOW &info) {
    const BottoneBarra *b = Bottone(static_cast<WORD>(info.hdr.idFrom));
    if (!b) return;
    suggerimento_ = ALargo(b->suggerimento);
    info.lpszText = suggerimento_.data();
    info.hinst = nullptr;
}

} // namespace telva
