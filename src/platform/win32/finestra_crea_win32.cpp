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

// Arrow keys move among the buttons and the swatches of one group: a group begins where kind or
// parent change.
bool InizioGruppo(const Controllo &c, const Controllo *precedente) {
    const bool unito = c.TipoControllo() == Tipo::BottoneOpzione || DaScegliere(c);
    return !unito || !precedente || precedente->TipoControllo() != c.TipoControllo() ||
           precedente->Genitore() != c.Genitore();
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
    SendMessageW(h, WM_SETFONT, reinterpret_cast<WPARAM>(piccolo ? fontPiccolo_ : font_), creata_);
    if (c.TipoControllo() == Tipo::CasellaTesto && static_cast<CasellaTesto &>(c).stretta)
        SendMessageW(h, EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, 0);
}

void FinestraWin32::CreaSuggerimenti() {
    suggerimenti_ = Richiesto(CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr,
                                              WS_POPUP | TTS_NOPREFIX | TTS_ALWAYSTIP, 0, 0, 0, 0,
                                              hwnd_, nullptr, GetModuleHandleW(nullptr), nullptr),
                              "CreateWindowEx(tooltips_class32)");
    SendMessageW(suggerimenti_, TTM_SETMAXTIPWIDTH, 0,
                 MulDiv(600, static_cast<int>(modulo_.dpi), 96));
}

HWND FinestraWin32::CreaControllo(Controllo &c, const Nascita &nascita) {
    const std::wstring testo = ALargo(TestoDi(c));
    switch (c.TipoControllo()) {
    case Tipo::Etichetta: {
        const auto &e = static_cast<Etichetta &>(c);
        if (e.stile == StileEtichetta::Riassunto) return CreaRiassunto(nascita, testo);
        return nascita.Crea(L"STATIC", testo, StileEtichettaNativo(e));
    }
    case Tipo::Cornice: {
        if (!static_cast<Cornice &>(c).bordo)
            return nascita.Crea(kClasseCornice, L"", 0, WS_EX_TRANSPARENT);
        return nascita.Crea(L"BUTTON", testo, BS_GROUPBOX, WS_EX_TRANSPARENT);
    }
    case Tipo::CasellaTesto: {
        const HWND h = nascita.Crea(L"EDIT", testo, WS_TABSTOP | ES_AUTOHSCROLL, WS_EX_CLIENTEDGE);
        SendMessageW(h, EM_SETLIMITTEXT, 0, 0);
        return h;
    }
    case Tipo::CasellaSpunta: return nascita.Crea(L"BUTTON", testo, WS_TABSTOP | BS_AUTOCHECKBOX);
    case Tipo::BottoneOpzione:
        return nascita.Crea(L"BUTTON", testo, BS_AUTORADIOBUTTON); // Tab enters at the chosen one
    case Tipo::Pulsante: return nascita.Crea(L"BUTTON", testo, WS_TABSTOP | BS_PUSHBUTTON);
    case Tipo::Campione: {
        auto &campione = static_cast<Campione &>(c);
        if (!DaScegliere(c)) return nascita.Crea(L"STATIC", L"", SS_OWNERDRAW);
        return nascita.Crea(L"BUTTON", ALargo(campione.didascalia),
                            BS_OWNERDRAW | BS_NOTIFY | (campione.Marcato ? WS_TABSTOP : 0));
    }
    case Tipo::Disegno: return CreaDisegno(static_cast<RiquadroDisegno &>(c), nascita);
    case Tipo::BarraStrumenti:
        barra_ = std::make_unique<BarraWin32>(static_cast<BarraStrumenti &>(c), nascita,
                                              static_cast<UINT>(modulo_.dpi));
        return barra_->Maniglia();
    default: return nullptr;
    }
}

void FinestraWin32::CreaControlli() {
    CreaSuggerimenti();
    CreaFont();
    const Controllo *precedente = nullptr;
    int id = 100;
    for (Controllo *c : modulo_.controlli) {
        const DWORD stile = (c->VisibileDavvero() ? WS_VISIBLE : 0) |
                            (c->AbilitatoDavvero() ? 0 : WS_DISABLED) |
                            (InizioGruppo(*c, precedente) ? WS_GROUP : 0);
        // A box has no text of its own to be read out: its name is the label made before it.
        if (c->TipoControllo() == Tipo::CasellaTesto && !c->ToolTipText().empty())
            Nascita{hwnd_, {}, WS_VISIBLE, 0}.Crea(L"STATIC", ALargo(c->ToolTipText()), 0);
        const HWND h = CreaControllo(*c, {hwnd_, RettangoloPixel(*c), stile, id++});
        if (!h) continue;
        nativi_[c] = h;
        Richiesto(SetPropW(h, L"TelvaControllo", c), "SetProp");
        AssegnaNome(h, c->NomeControllo());
        AggiornaFont(*c, h);
        precedente = c;
        c->pari = this;
        CambiaSpunta(*c);
        CambiaSuggerimento(*c);
    }
    for (VoceMenu *voce : modulo_.voci) voce->pari = this;
    modulo_.pari = this;
}

} // namespace telva
