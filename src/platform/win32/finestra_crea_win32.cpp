// Making the native controls of a window.
#include "platform/win32/finestra_win32.h"

#include "platform/win32/disegno_win32.h"
#include "platform/win32/riassunto_win32.h"

namespace telva {
namespace {

constexpr const wchar_t *kClasseCornice = L"TelvaCornice";

// A frame without border only groups its children: it paints nothing and lets the mouse through.
LRESULT CALLBACK ProceduraCornice(HWND hwnd, UINT messaggio, WPARAM w, LPARAM l) {
    switch (messaggio) {
    case WM_ERASEBKGND: return 1;
    case WM_NCHITTEST: return HTTRANSPARENT;
    default: return DefWindowProcW(hwnd, messaggio, w, l);
    }
}

// Arrow keys move among the buttons of one group: a group begins where kind or parent change.
bool InizioGruppo(const Controllo &c, const Controllo *precedente) {
    return !precedente || precedente->TipoControllo() != c.TipoControllo() ||
           precedente->Genitore() != c.Genitore() || c.TipoControllo() != Tipo::BottoneOpzione;
}

DWORD StileEtichettaNativo(const Etichetta &e) {
    if (e.stile == StileEtichetta::Centrata) return SS_OWNERDRAW;
    const bool unaRiga = e.stile == StileEtichetta::Semplice;
    return SS_NOPREFIX | SS_NOTIFY |
           (e.stile == StileEtichetta::SuPiuRighe ? SS_LEFT : SS_LEFTNOWORDWRAP) |
           (unaRiga ? SS_CENTERIMAGE | SS_ENDELLIPSIS : 0);
}

} // namespace

void FinestraWin32::RegistraClassi() {
    RegistraDisegno();
    RegistraRiassunto();
    WNDCLASSEXW classe{};
    classe.cbSize = sizeof classe;
    classe.hInstance = GetModuleHandleW(nullptr);
    classe.lpfnWndProc = ProceduraCornice;
    classe.lpszClassName = kClasseCornice;
    Richiesto(RegisterClassExW(&classe), "RegisterClassEx");
    classe.lpfnWndProc = Procedura;
    classe.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    classe.hIcon = LoadIconW(classe.hInstance, MAKEINTRESOURCEW(1));
    classe.hbrBackground = reinterpret_cast<HBRUSH>(static_cast<INT_PTR>(COLOR_BTNFACE + 1));
    classe.lpszClassName = L"TelvaFinestra";
    Richiesto(RegisterClassExW(&classe), "RegisterClassEx");
    classe.lpszClassName = L"TelvaDialogo";
    Richiesto(RegisterClassExW(&classe), "RegisterClassEx");
}

void FinestraWin32::CreaFont() {
    NONCLIENTMETRICSW misure{};
    misure.cbSize = sizeof misure;
    LOGFONTW tipo{};
    if (SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof misure, &misure, 0))
        tipo = misure.lfMessageFont;
    else
        GetObjectW(GetStockObject(DEFAULT_GUI_FONT), sizeof tipo, &tipo);
    // The system tells the size for its own DPI; this window may stand on another monitor.
    tipo.lfHeight =
        MulDiv(tipo.lfHeight, static_cast<int>(modulo_.dpi), static_cast<int>(DpiDi(nullptr)));
    const HFONT prima = font_, piccoloPrima = fontPiccolo_;
    font_ = Richiesto(CreateFontIndirectW(&tipo), "CreateFontIndirect");
    tipo.lfHeight = MulDiv(tipo.lfHeight, 3, 4);
    fontPiccolo_ = Richiesto(CreateFontIndirectW(&tipo), "CreateFontIndirect");
    for (Controllo *c : modulo_.controlli)
        if (const HWND h = Nativo(*c)) AggiornaFont(*c, h);
    if (suggerimenti_)
        SendMessageW(suggerimenti_, WM_SETFONT, reinterpret_cast<WPARAM>(font_), FALSE);
    if (prima) DeleteObject(prima);
    if (piccoloPrima) DeleteObject(piccoloPrima);
}

void FinestraWin32::AggiornaFont(Controllo &c, HWND h) {
    const bool piccolo = c.TipoControllo() == Tipo::Etichetta &&
                         static_cast<Etichetta &>(c).stile == StileEtichetta::Pedice;
    SendMessageW(h, WM_SETFONT, reinterpret_cast<WPARAM>(piccolo ? fontPiccolo_ : font_), TRUE);
}

void FinestraWin32::CreaSuggerimenti() {
    suggerimenti_ = Richiesto(CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr,
                                              WS_POPUP | TTS_NOPREFIX | TTS_ALWAYSTIP, 0, 0, 0, 0,
                                              hwnd_, nullptr, GetModuleHandleW(nullptr), nullptr),
                              "CreateWindowEx(tooltips_class32)");
    SendMessageW(suggerimenti_, TTM_SETMAXTIPWIDTH, 0,
                 MulDiv(600, static_cast<int>(modulo_.dpi), 96));
}

HWND FinestraWin32::CreaNativo(const wchar_t *classe, const std::string &testo, DWORD stile,
                               DWORD esteso, int id) {
    return Richiesto(CreateWindowExW(esteso, classe, ALargo(testo).c_str(),
                                     WS_CHILD | WS_CLIPSIBLINGS | stile, 0, 0, 0, 0, hwnd_,
                                     reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)),
                                     GetModuleHandleW(nullptr), nullptr),
                     "CreateWindowEx");
}

HWND FinestraWin32::CreaControllo(Controllo &c, int id) {
    switch (c.TipoControllo()) {
    case Tipo::Etichetta: {
        auto &e = static_cast<Etichetta &>(c);
        if (e.stile == StileEtichetta::Riassunto)
            return CreaRiassunto(hwnd_, id, ALargo(e.Caption()));
        return CreaNativo(L"STATIC", e.Caption, StileEtichettaNativo(e), 0, id);
    }
    case Tipo::Cornice: {
        auto &f = static_cast<Cornice &>(c);
        if (!f.bordo) return CreaNativo(kClasseCornice, "", 0, WS_EX_TRANSPARENT, id);
        return CreaNativo(L"BUTTON", f.Caption, BS_GROUPBOX, WS_EX_TRANSPARENT, id);
    }
    case Tipo::CasellaTesto: {
        const HWND h = CreaNativo(L"EDIT", static_cast<CasellaTesto &>(c).Text,
                                  WS_TABSTOP | ES_AUTOHSCROLL, WS_EX_CLIENTEDGE, id);
        SendMessageW(h, EM_SETLIMITTEXT, 0, 0);
        return h;
    }
    case Tipo::CasellaSpunta:
        return CreaNativo(L"BUTTON", static_cast<CasellaSpunta &>(c).Caption,
                          WS_TABSTOP | BS_AUTOCHECKBOX, 0, id);
    case Tipo::BottoneOpzione:
        return CreaNativo(L"BUTTON", static_cast<BottoneOpzione &>(c).Caption,
                          WS_TABSTOP | BS_AUTORADIOBUTTON, 0, id);
    case Tipo::Pulsante:
        return CreaNativo(L"BUTTON", static_cast<Pulsante &>(c).Caption, WS_TABSTOP | BS_PUSHBUTTON,
                          0, id);
    case Tipo::Campione: {
        auto &campione = static_cast<Campione &>(c);
        if (!campione.Click) return CreaNativo(L"STATIC", "", SS_OWNERDRAW, 0, id);
        return CreaNativo(L"BUTTON", campione.didascalia, WS_TABSTOP | BS_OWNERDRAW, 0, id);
    }
    case Tipo::Disegno: return CreaDisegno(static_cast<RiquadroDisegno &>(c), hwnd_, id);
    case Tipo::BarraStrumenti:
        barra_ = std::make_unique<BarraWin32>(static_cast<BarraStrumenti &>(c), hwnd_, id,
                                              static_cast<UINT>(modulo_.dpi));
        return barra_->Maniglia();
    default: return nullptr;
    }
}

void FinestraWin32::CreaControlli() {
    CreaSuggerimenti();
    const Controllo *precedente = nullptr;
    int id = 100;
    for (Controllo *c : modulo_.controlli) {
        const HWND h = CreaControllo(*c, id++);
        if (!h) continue;
        nativi_[c] = h;
        Richiesto(SetPropW(h, L"TelvaControllo", c), "SetProp");
        AssegnaNome(h, c->NomeControllo());
        if (InizioGruppo(*c, precedente))
            SetWindowLongPtrW(h, GWL_STYLE, GetWindowLongPtrW(h, GWL_STYLE) | WS_GROUP);
        precedente = c;
        c->pari = this;
        for (const Campo campo : {Campo::Posizione, Campo::Visibile, Campo::Abilitato,
                                  Campo::Spunta, Campo::Suggerimento})
            Cambia(*c, campo);
    }
    for (VoceMenu *voce : modulo_.voci) voce->pari = this;
    modulo_.pari = this;
    CreaFont();
    ApplicaPosizioni();
}

} // namespace telva
