#include "platform/win32/menu_win32.h"

#include "platform/win32/schermo_win32.h"

#include <algorithm>
#include <utility>

namespace telva {
namespace {

constexpr WORD kPrimaVoce = 1000;

WORD IdVoce(const Modulo &modulo, const VoceMenu &voce) {
    const auto posto = std::find(modulo.voci.begin(), modulo.voci.end(), &voce);
    return static_cast<WORD>(kPrimaVoce + (posto - modulo.voci.begin()));
}

std::wstring TestoVoce(const VoceMenu &voce) {
    std::wstring testo = ALargo(voce.Caption());
    if (voce.scorciatoia)
        testo += std::wstring(L"\tCtrl+") + static_cast<wchar_t>(voce.scorciatoia);
    return testo;
}

MENUITEMINFOW Stato(const VoceMenu &voce, std::wstring &testo) {
    testo = TestoVoce(voce);
    MENUITEMINFOW info{};
    info.cbSize = sizeof info;
    info.fMask = MIIM_STRING | MIIM_STATE;
    info.fState = static_cast<UINT>((voce.Enabled ? MFS_ENABLED : MFS_GRAYED) |
                                    (voce.Checked ? MFS_CHECKED : MFS_UNCHECKED));
    info.dwTypeData = testo.data();
    return info;
}

} // namespace

MenuWin32::MenuWin32(Modulo &modulo, OspiteWin32 &finestra) : modulo_(modulo), finestra_(finestra) {
    barra_ = Costruisci(modulo.barraMenu, Richiesto(CreateMenu(), "CreateMenu"));
    Richiesto(SetMenu(finestra.Maniglia(), barra_), "SetMenu");
    std::vector<ACCEL> tasti;
    for (const VoceMenu *voce : modulo.voci)
        if (voce->scorciatoia)
            tasti.push_back(
                {FVIRTKEY | FCONTROL, static_cast<WORD>(voce->scorciatoia), IdVoce(modulo, *voce)});
    if (!tasti.empty())
        scorciatoie_ =
            Richiesto(CreateAcceleratorTableW(tasti.data(), static_cast<int>(tasti.size())),
                      "CreateAcceleratorTable");
    for (VoceMenu *voce : modulo.voci) voce->pari = this;
}

MenuWin32::~MenuWin32() {
    for (VoceMenu *voce : modulo_.voci) voce->pari = nullptr;
    for (const auto &[voce, posto] : posti_)
        if (posto.figura) DeleteObject(posto.figura);
    if (scorciatoie_) DestroyAcceleratorTable(scorciatoie_);
}

HMENU MenuWin32::Costruisci(const std::vector<VoceMenu *> &voci, HMENU menu) {
    UINT posizione = 0;
    for (const VoceMenu *voce : voci) {
        HMENU figlio = nullptr;
        if (!voce->voci.empty())
            figlio = Costruisci(voce->voci, Richiesto(CreatePopupMenu(), "CreatePopupMenu"));
        Inserisci(*voce,
                  {menu, posizione++, figlio, BitmapFigura(*voce, DpiDi(finestra_.Maniglia()))});
    }
    return menu;
}

void MenuWin32::Inserisci(const VoceMenu &voce, const VoceMostrata &posto) {
    std::wstring testo;
    MENUITEMINFOW info = Stato(voce, testo);
    info.fMask |= MIIM_ID;
    info.wID = IdVoce(modulo_, voce);
    if (posto.figlio) {
        info.fMask |= MIIM_SUBMENU;
        info.hSubMenu = posto.figlio;
    }
    if (posto.figura) {
        info.fMask |= MIIM_BITMAP;
        info.hbmpItem = posto.figura;
    }
    Richiesto(InsertMenuItemW(posto.menu, posto.posizione, TRUE, &info), "InsertMenuItem");
    posti_[&voce] = posto;
}

HBITMAP MenuWin32::BitmapFigura(const VoceMenu &voce, UINT dpi) const {
    if (voce.figura.genere == FiguraVoce::Genere::Nessuna || !modulo_.FiguraMenu) return nullptr;
    const Figura f = modulo_.FiguraMenu(voce.figura, AltezzaSpuntaMenu(dpi), dpi / 96.0);
    return CreaBitmap(f.pixel, f.larghezza, f.altezza);
}

void MenuWin32::DpiCambiato(UINT dpi) {
    for (auto &[voce, posto] : posti_) {
        if (!posto.figura) continue;
        MENUITEMINFOW info{};
        info.cbSize = sizeof info;
        info.fMask = MIIM_BITMAP;
        info.hbmpItem = BitmapFigura(*voce, dpi);
        SetMenuItemInfoW(posto.menu, posto.posizione, TRUE, &info);
        DeleteObject(std::exchange(posto.figura, info.hbmpItem));
    }
}

VoceMenu *MenuWin32::Voce(WORD id) const {
    const auto posto = static_cast<std::size_t>(id - kPrimaVoce);
    return id >= kPrimaVoce && posto < modulo_.voci.size() ? modulo_.voci[posto] : nullptr;
}

void MenuWin32::Comando(WORD id) const {
    const VoceMenu *voce = Voce(id);
    if (voce && voce->Click && voce->Enabled) finestra_.Evento(voce->Click);
}

bool MenuWin32::TraduciScorciatoia(MSG &messaggio) const {
    return scorciatoie_ &&
           TranslateAcceleratorW(finestra_.Maniglia(), scorciatoie_, &messaggio) != 0;
}

void MenuWin32::Cambia(Controllo &controllo, Campo) {
    for (const VoceMenu *voce : modulo_.voci)
        if (voce == &controllo) {
            Aggiorna(*voce);
            finestra_.VoceCambiata(*voce);
        }
}

void MenuWin32::Aggiorna(const VoceMenu &voce) const {
    const auto posto = posti_.find(&voce);
    if (posto == posti_.end()) return;
    std::wstring testo;
    MENUITEMINFOW info = Stato(voce, testo);
    SetMenuItemInfoW(posto->second.menu, posto->second.posizione, TRUE, &info);
    if (posto->second.menu == barra_) DrawMenuBar(finestra_.Maniglia());
}

LRESULT MenuWin32::Lettera(HMENU menu, wchar_t lettera) const {
    const auto grande = [](wchar_t c) {
        return reinterpret_cast<UINT_PTR>(
            CharUpperW(reinterpret_cast<LPWSTR>(static_cast<UINT_PTR>(c))));
    };
    std::vector<UINT> adatte;
    UINT scelta = 0; // where the bar stands in this menu; past its end when nowhere
    const auto quante = static_cast<UINT>(GetMenuItemCount(menu));
    while (scelta < quante && !(GetMenuState(menu, scelta, MF_BYPOSITION) & MF_HILITE)) ++scelta;
    for (const auto &[voce, posto] : posti_) {
        const std::wstring testo = ALargo(voce->Caption());
        if (posto.menu == menu && voce->Enabled && !testo.empty() &&
            testo.find(L'&') == std::wstring::npos && grande(testo.front()) == grande(lettera))
            adatte.push_back(posto.posizione);
    }
    if (adatte.empty()) return MAKELRESULT(0, MNC_IGNORE);
    std::sort(adatte.begin(), adatte.end());
    if (adatte.size() == 1) return MAKELRESULT(adatte.front(), MNC_EXECUTE);
    const auto dopo = std::upper_bound(adatte.begin(), adatte.end(), scelta);
    return MAKELRESULT(scelta < quante && dopo != adatte.end() ? *dopo : adatte.front(),
                       MNC_SELECT);
}

void MenuWin32::Popup(const VoceMenu &menu) const {
    const auto posto = posti_.find(&menu);
    POINT p{};
    if (posto == posti_.end() || !posto->second.figlio || !GetCursorPos(&p)) return;
    TrackPopupMenu(posto->second.figlio, TPM_LEFTALIGN | TPM_TOPALIGN | TPM_RIGHTBUTTON, p.x, p.y,
                   0, finestra_.Maniglia(), nullptr);
}

} // namespace telva
