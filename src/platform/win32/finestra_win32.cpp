#include "platform/win32/finestra_win32.h"

#include "platform/messaggi.h"
#include "platform/win32/disegno_win32.h"
#include "platform/win32/riassunto_win32.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace telva {
namespace {

constexpr int kEscape = 27;

// A list has no blanks to break lines at: a tip breaks it after commas.
std::wstring SpezzaElenco(std::wstring_view elenco) {
    constexpr std::size_t kColonne = 90;
    std::wstring righe;
    std::size_t colonna = 0;
    for (const wchar_t c : elenco) {
        righe += c;
        if (c == L',' && ++colonna > kColonne) {
            righe += L"\r\n";
            colonna = 0;
        } else {
            ++colonna;
        }
    }
    return righe;
}

void Imposta(HWND h, LONG_PTR stile, bool mostra) {
    const LONG_PTR attuale = GetWindowLongPtrW(h, GWL_STYLE);
    SetWindowLongPtrW(h, GWL_STYLE, mostra ? attuale | stile : attuale & ~stile);
}

} // namespace

std::string TestoDi(const Controllo &c) {
    switch (c.TipoControllo()) {
    case Tipo::Etichetta: return static_cast<const Etichetta &>(c).Caption;
    case Tipo::Cornice: return static_cast<const Cornice &>(c).Caption;
    case Tipo::CasellaTesto: return static_cast<const CasellaTesto &>(c).Text;
    case Tipo::CasellaSpunta: return static_cast<const CasellaSpunta &>(c).Caption;
    case Tipo::BottoneOpzione: return static_cast<const BottoneOpzione &>(c).Caption;
    case Tipo::Pulsante: return static_cast<const Pulsante &>(c).Caption;
    case Tipo::Modulo: return static_cast<const Modulo &>(c).Caption;
    default: return {};
    }
}

bool DaScegliere(const Controllo &c) {
    return c.TipoControllo() == Tipo::Campione && static_cast<const Campione &>(c).Click;
}

HCURSOR Cursore(Puntatore puntatore) {
    const wchar_t *nome = puntatore == Puntatore::Croce          ? IDC_CROSS
                          : puntatore == Puntatore::Ridimensiona ? IDC_SIZEALL
                          : puntatore == Puntatore::Clessidra    ? IDC_WAIT
                                                                 : IDC_ARROW;
    return LoadCursorW(nullptr, nome);
}

FinestraWin32::FinestraWin32(Modulo &modulo, HWND proprietaria) : modulo_(modulo) {
    const double dpiPrima = modulo.dpi;
    modulo.dpi = DpiDi(proprietaria);
    const bool principale = modulo.ridimensionabile;
    const DWORD stile =
        principale ? WS_OVERLAPPEDWINDOW : WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_CLIPSIBLINGS;
    const DWORD esteso = principale ? 0 : WS_EX_DLGMODALFRAME;
    hwnd_ = Richiesto(CreateWindowExW(esteso, principale ? L"TelvaFinestra" : L"TelvaDialogo",
                                      ALargo(modulo.Caption()).c_str(), stile, CW_USEDEFAULT,
                                      CW_USEDEFAULT, 100, 100, proprietaria, nullptr,
                                      GetModuleHandleW(nullptr), nullptr),
                      "CreateWindowEx");
    SetWindowLongPtrW(hwnd_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    AssegnaNome(hwnd_, modulo.NomeControllo());
    modulo.dpi = DpiDi(hwnd_);
    if (!modulo.barraMenu.empty()) menu_ = std::make_unique<MenuWin32>(modulo, hwnd_);
    CreaControlli();
    creata_ = true;
    ApplicaMisuraFinestra();
    RECT r{};
    if (principale && GetWindowRect(hwnd_, &r)) Sposta(r.left, r.top);
    if (modulo.dpi != dpiPrima) Ridimensionata(SIZE_RESTORED, true);
}

FinestraWin32::~FinestraWin32() {
    for (Controllo *c : modulo_.controlli) c->pari = nullptr;
    for (VoceMenu *voce : modulo_.voci) voce->pari = nullptr;
    modulo_.pari = nullptr;
    TogliNomi();
    SetWindowLongPtrW(hwnd_, GWLP_USERDATA, 0);
    DestroyWindow(hwnd_);
    barra_.reset();
    if (font_) DeleteObject(font_);
    if (fontPiccolo_) DeleteObject(fontPiccolo_);
}

void FinestraWin32::TogliNomi() const {
    for (const auto &[c, h] : nativi_) TogliNome(h);
    TogliNome(hwnd_);
}

FinestraWin32 *FinestraWin32::Di(HWND finestra) {
    const HWND cima = finestra ? GetAncestor(finestra, GA_ROOT) : nullptr;
    wchar_t classe[32] = L"";
    if (!cima || !GetClassNameW(cima, classe, 32)) return nullptr;
    const std::wstring_view nome(classe);
    if (nome != L"TelvaFinestra" && nome != L"TelvaDialogo") return nullptr;
    return reinterpret_cast<FinestraWin32 *>(GetWindowLongPtrW(cima, GWLP_USERDATA));
}

void FinestraWin32::Mostra(int comando) {
    ShowWindow(hwnd_, comando);
    UpdateWindow(hwnd_);
    if (modulo_.fuoco && Nativo(*modulo_.fuoco)) PortaFuoco(*modulo_.fuoco);
}

void FinestraWin32::MostraPopup(VoceMenu &menu) {
    if (menu_) menu_->Popup(menu);
}

HWND FinestraWin32::Nativo(const Controllo &c) const {
    const auto posto = nativi_.find(&c);
    return posto == nativi_.end() ? nullptr : posto->second;
}

Controllo *FinestraWin32::DaNativo(HWND h) const {
    return static_cast<Controllo *>(GetPropW(h, L"TelvaControllo"));
}

void FinestraWin32::Evento(const std::function<void()> &evento) {
    EseguiProtetto([&] {
        evento();
        ApplicaPosizioni();
    });
}

// ---- changes of properties -------------------------------------------------------------------

void FinestraWin32::Cambia(Controllo &c, Campo campo) {
    if (c.TipoControllo() == Tipo::VoceMenu) {
        if (menu_) menu_->Aggiorna(static_cast<VoceMenu &>(c));
        if (barra_) barra_->AggiornaAbilitati();
        return;
    }
    if (&c == &modulo_) {
        if (campo == Campo::Posizione && creata_) ApplicaMisuraFinestra();
        if (campo == Campo::Didascalia) CambiaTesto(hwnd_, modulo_.Caption);
        if (campo == Campo::Puntatore) CambiaPuntatore();
        return;
    }
    const HWND h = Nativo(c);
    if (!h) return;
    switch (campo) {
    case Campo::Posizione:
        for (Controllo *toccato : ConFigli(c)) daPosizionare_.insert(toccato);
        break;
    case Campo::Visibile: CambiaVisibile(c); break;
    case Campo::Abilitato: CambiaAbilitato(c); break;
    case Campo::Didascalia:
    case Campo::Testo: CambiaTesto(h, TestoDi(c)); break;
    case Campo::Spunta: CambiaSpunta(c); break;
    case Campo::Colore:
        // Tab enters the swatches at the chosen one.
        if (DaScegliere(c)) Imposta(h, WS_TABSTOP, static_cast<Campione &>(c).Marcato);
        [[fallthrough]];
    case Campo::Sfondo: InvalidateRect(h, nullptr, TRUE); break;
    case Campo::Puntatore: CambiaPuntatore(); break;
    case Campo::Suggerimento: CambiaSuggerimento(c); break;
    case Campo::Fuoco: PortaFuoco(c); break;
    case Campo::Immagine:
        ApplicaPosizioni(); // the box must have its size before it shows the picture made for it
        MostraImmagine(h);
        break;
    case Campo::Elastici: MostraElastici(h); break;
    default: break;
    }
}

// The control and all that stand in it: they move and vanish together.
std::vector<Controllo *> FinestraWin32::ConFigli(Controllo &c) const {
    std::vector<Controllo *> tutti = {&c};
    if (c.TipoControllo() == Tipo::Cornice)
        for (Controllo *altro : modulo_.controlli)
            if (altro->Genitore() == &c) tutti.push_back(altro);
    return tutti;
}

void FinestraWin32::CambiaVisibile(Controllo &c) {
    for (Controllo *toccato : ConFigli(c)) {
        const HWND h = Nativo(*toccato);
        if (!h) continue;
        if (!toccato->VisibileDavvero()) LasciaFuoco(h);
        ShowWindow(h, toccato->VisibileDavvero() ? SW_SHOWNA : SW_HIDE);
    }
}

void FinestraWin32::CambiaAbilitato(Controllo &c) {
    for (Controllo *toccato : ConFigli(c)) {
        const HWND h = Nativo(*toccato);
        if (!h) continue;
        if (!toccato->AbilitatoDavvero()) LasciaFuoco(h);
        EnableWindow(h, toccato->AbilitatoDavvero());
    }
}

void FinestraWin32::CambiaSpunta(Controllo &c) {
    bool spunta = false;
    if (c.TipoControllo() == Tipo::CasellaSpunta)
        spunta = static_cast<CasellaSpunta &>(c).Value;
    else if (c.TipoControllo() == Tipo::BottoneOpzione)
        spunta = static_cast<BottoneOpzione &>(c).Value;
    else
        return;
    if (!creata_ && !spunta) return; // it is born so
    SendMessageW(Nativo(c), BM_SETCHECK, spunta ? BST_CHECKED : BST_UNCHECKED, 0);
    // Tab enters a group at the chosen button.
    if (c.TipoControllo() == Tipo::BottoneOpzione) Imposta(Nativo(c), WS_TABSTOP, spunta);
}

void FinestraWin32::CambiaTesto(HWND h, const std::string &testo) {
    if (TestoFinestra(h) == testo) return;
    SetWindowTextW(h, ALargo(testo).c_str());
    if (Controllo *c = DaNativo(h); c && c->TipoControllo() == Tipo::Etichetta) {
        InvalidateRect(h, nullptr, TRUE);
        if (static_cast<Etichetta *>(c)->stile == StileEtichetta::Riassunto) CambiaSuggerimento(*c);
    }
}

void FinestraWin32::CambiaSuggerimento(Controllo &c) {
    const HWND h = Nativo(c);
    std::wstring testo = ALargo(c.ToolTipText());
    const bool riassunto = c.TipoControllo() == Tipo::Etichetta &&
                           static_cast<Etichetta &>(c).stile == StileEtichetta::Riassunto;
    if (riassunto && RiassuntoTagliato(h)) testo = SpezzaElenco(ALargo(TestoDi(c)));
    TTTOOLINFOW strumento{};
    strumento.cbSize = sizeof strumento;
    strumento.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
    strumento.hwnd = hwnd_;
    strumento.uId = reinterpret_cast<UINT_PTR>(h);
    const bool prima = testiSuggeriti_.contains(&c);
    if (testo.empty()) {
        if (prima)
            SendMessageW(suggerimenti_, TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&strumento));
        testiSuggeriti_.erase(&c);
        return;
    }
    testiSuggeriti_[&c] = std::move(testo);
    strumento.lpszText = testiSuggeriti_[&c].data();
    SendMessageW(suggerimenti_, prima ? TTM_UPDATETIPTEXTW : TTM_ADDTOOLW, 0,
                 reinterpret_cast<LPARAM>(&strumento));
}

// The new shape at once, if the pointer stands on this window.
void FinestraWin32::CambiaPuntatore() {
    POINT p{};
    if (!GetCursorPos(&p)) return;
    const HWND sotto = WindowFromPoint(p);
    if (sotto && GetAncestor(sotto, GA_ROOT) == hwnd_)
        SendMessageW(hwnd_, WM_SETCURSOR, reinterpret_cast<WPARAM>(sotto),
                     MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
}

void FinestraWin32::PortaFuoco(Controllo &c) {
    const HWND h = Nativo(c);
    if (!h || !IsWindowEnabled(h)) return;
    ultimoFuoco_ = h;
    SetFocus(h);
    if (c.TipoControllo() == Tipo::CasellaTesto) SendMessageW(h, EM_SETSEL, 0, -1);
}

// The keyboard must always have somewhere to go.
void FinestraWin32::LasciaFuoco(HWND h) {
    if (ultimoFuoco_ == h) ultimoFuoco_ = nullptr;
    if (GetFocus() == h) SetFocus(hwnd_);
}

RECT FinestraWin32::RettangoloPixel(const Controllo &c) const {
    const int left = APixel(c.LeftAssoluto(), modulo_.dpi);
    const int top = APixel(c.TopAssoluto(), modulo_.dpi);
    return {left, top, left + std::max(APixel(c.Width, modulo_.dpi), 0),
            top + std::max(APixel(c.Height, modulo_.dpi), 0)};
}

void FinestraWin32::ApplicaPosizioni() {
    if (daPosizionare_.empty()) return;
    // Pixels copied from the old place may carry what a neighbour has painted there since.
    constexpr UINT kModo = SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOCOPYBITS;
    HDWP gruppo = BeginDeferWindowPos(static_cast<int>(daPosizionare_.size()));
    for (const Controllo *c : daPosizionare_) {
        const HWND h = Nativo(*c);
        const RECT r = RettangoloPixel(*c);
        if (h && gruppo)
            gruppo = DeferWindowPos(gruppo, h, nullptr, r.left, r.top, r.right - r.left,
                                    r.bottom - r.top, kModo);
    }
    if (!gruppo || !EndDeferWindowPos(gruppo)) { // all at once failed: one by one
        for (const Controllo *c : daPosizionare_) {
            const RECT r = RettangoloPixel(*c);
            if (const HWND h = Nativo(*c))
                SetWindowPos(h, nullptr, r.left, r.top, r.right - r.left, r.bottom - r.top, kModo);
        }
    }
    // The frames let what is under them show through, so what has moved leaves its traces there.
    RedrawWindow(hwnd_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
    // What fitted into the summary field before may not fit now.
    const auto spostati = std::exchange(daPosizionare_, {});
    for (Controllo *c : spostati)
        if (c->TipoControllo() == Tipo::Etichetta &&
            static_cast<Etichetta *>(c)->stile == StileEtichetta::Riassunto)
            CambiaSuggerimento(*c);
}

void FinestraWin32::ApplicaMisuraFinestra() {
    if (!modulo_.ridimensionabile) {
        const SIZE interna{APixel(modulo_.Width, modulo_.dpi), APixel(modulo_.Height, modulo_.dpi)};
        const auto stile = static_cast<DWORD>(GetWindowLongPtrW(hwnd_, GWL_STYLE));
        const auto esteso = static_cast<DWORD>(GetWindowLongPtrW(hwnd_, GWL_EXSTYLE));
        const SIZE s =
            MisuraEsterna(interna, stile, esteso, menu_ != nullptr, static_cast<UINT>(modulo_.dpi));
        RECT p{0, 0, 0, 0};
        const HWND proprietaria = GetWindow(hwnd_, GW_OWNER);
        if (proprietaria) GetWindowRect(proprietaria, &p);
        RECT r{p.left + (p.right - p.left - s.cx) / 2, p.top + (p.bottom - p.top - s.cy) / 2, 0, 0};
        r.right = r.left + s.cx;
        r.bottom = r.top + s.cy;
        PortaNelloSchermo(r);
        SetWindowPos(hwnd_, nullptr, r.left, r.top, s.cx, s.cy, SWP_NOZORDER | SWP_NOACTIVATE);
        return;
    }
    RECT intera{};
    if (!GetWindowRect(hwnd_, &intera)) return;
    const RECT visibile = RettangoloVisibile(hwnd_);
    const int oltreX =
        static_cast<int>((intera.right - intera.left) - (visibile.right - visibile.left));
    const int oltreY =
        static_cast<int>((intera.bottom - intera.top) - (visibile.bottom - visibile.top));
    // Upwards, so that the smallest size is never undercut by a fraction of a pixel.
    const int l = static_cast<int>(std::ceil(modulo_.Width * modulo_.dpi / 1440 - 1e-6));
    const int a = static_cast<int>(std::ceil(modulo_.Height * modulo_.dpi / 1440 - 1e-6));
    SetWindowPos(hwnd_, nullptr, 0, 0, l + oltreX, a + oltreY,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

// ---- events -----------------------------------------------------------------------------------

LRESULT CALLBACK FinestraWin32::Procedura(HWND hwnd, UINT messaggio, WPARAM w, LPARAM l) {
    auto *f = reinterpret_cast<FinestraWin32 *>(GetWindowLongPtrW(hwnd, GWLP_USERDATA));
    if (!f || f->hwnd_ != hwnd) return DefWindowProcW(hwnd, messaggio, w, l);
    LRESULT esito = 0;
    EseguiProtetto([&] { esito = f->Messaggio(messaggio, w, l); });
    return esito;
}

LRESULT FinestraWin32::Messaggio(UINT messaggio, WPARAM w, LPARAM l) {
    switch (messaggio) {
    case WM_SIZE: Ridimensionata(w); return 0;
    case WM_GETMINMAXINFO: MisuraMinima(*reinterpret_cast<MINMAXINFO *>(l)); return 0;
    case WM_DPICHANGED: DpiCambiato(HIWORD(w), *reinterpret_cast<const RECT *>(l)); return 0;
    case WM_COMMAND: Comando(reinterpret_cast<HWND>(l), HIWORD(w), LOWORD(w)); return 0;
    case WM_MENUCHAR:
        if (!menu_) break;
        return menu_->Lettera(reinterpret_cast<HMENU>(l), static_cast<wchar_t>(LOWORD(w)));
    case WM_NEXTDLGCTL: // an arrow key inside a group
        if (LOWORD(l)) SetFocus(reinterpret_cast<HWND>(w));
        return 0;
    case WM_NOTIFY: return Notifica(*reinterpret_cast<const NMHDR *>(l), l);
    case WM_DRAWITEM: DisegnaCampione(*reinterpret_cast<const DRAWITEMSTRUCT *>(l)); return TRUE;
    case WM_CTLCOLORSTATIC:
    case WM_CTLCOLOREDIT:
        return ColoreControllo(reinterpret_cast<HDC>(w), reinterpret_cast<HWND>(l));
    case WM_SYSCOLORCHANGE:
        if (barra_) barra_->ImpostaDpi(static_cast<UINT>(modulo_.dpi));
        for (const auto &[c, h] : nativi_) SendMessageW(h, messaggio, w, l);
        break;
    case WM_ERASEBKGND: CancellaSfondo(reinterpret_cast<HDC>(w)); return 1;
    case WM_SETCURSOR: {
        if (LOWORD(l) != HTCLIENT) break;
        Puntatore puntatore = modulo_.MousePointer;
        Controllo *c = DaNativo(reinterpret_cast<HWND>(w));
        if (puntatore == Puntatore::Predefinito && c && c->TipoControllo() == Tipo::Disegno)
            puntatore = static_cast<RiquadroDisegno *>(c)->MousePointer;
        if (puntatore == Puntatore::Predefinito && c) break;
        SetCursor(Cursore(puntatore));
        return TRUE;
    }
    case WM_ACTIVATE:
        if (LOWORD(w) == WA_INACTIVE) {
            const HWND fuoco = GetFocus();
            ultimoFuoco_ = fuoco && IsChild(hwnd_, fuoco) ? fuoco : nullptr;
            escPremuto_ = false;
        }
        break;
    case WM_SETFOCUS:
        if (ultimoFuoco_ && IsWindowEnabled(ultimoFuoco_) && IsWindowVisible(ultimoFuoco_))
            SetFocus(ultimoFuoco_);
        return 0;
    case WM_CLOSE: Evento([this] { modulo_.Chiudi(); }); return 0;
    default: break;
    }
    return DefWindowProcW(hwnd_, messaggio, w, l);
}

void FinestraWin32::Ridimensionata(WPARAM modo, bool forza) {
    modulo_.ridotta = modo == SIZE_MINIMIZED;
    if (!creata_ || !modulo_.ridimensionabile || modulo_.ridotta) return;
    const RECT r = RettangoloVisibile(hwnd_);
    const double larghezza = ATwip(r.right - r.left, modulo_.dpi);
    const double altezza = ATwip(r.bottom - r.top, modulo_.dpi);
    if (modo == SIZE_RESTORED && !IsZoomed(hwnd_)) {
        larghezzaNormale_ = larghezza;
        altezzaNormale_ = altezza;
    }
    // Shown or restored at the size it had: everything stands where it is.
    if (!forza && modulo_.Width == larghezza && modulo_.Height == altezza) return;
    modulo_.Width.Accogli(larghezza);
    modulo_.Height.Accogli(altezza);
    if (modulo_.Resize) Evento(modulo_.Resize);
    InvalidateRect(hwnd_, nullptr, TRUE);
}

void FinestraWin32::MisuraMinima(MINMAXINFO &info) const {
    if (!modulo_.ridimensionabile) return;
    RECT intera{};
    if (!GetWindowRect(hwnd_, &intera)) return;
    const RECT v = RettangoloVisibile(hwnd_);
    const LONG oltreX = (intera.right - intera.left) - (v.right - v.left);
    const LONG oltreY = (intera.bottom - intera.top) - (v.bottom - v.top);
    info.ptMinTrackSize.x =
        static_cast<LONG>(std::ceil(modulo_.larghezzaMinima * modulo_.dpi / 1440)) + oltreX;
    info.ptMinTrackSize.y =
        static_cast<LONG>(std::ceil(modulo_.altezzaMinima * modulo_.dpi / 1440)) + oltreY;
}

void FinestraWin32::DpiCambiato(UINT dpi, const RECT &r) {
    modulo_.dpi = dpi;
    CreaFont();
    if (barra_) barra_->ImpostaDpi(dpi);
    for (Controllo *c : modulo_.controlli) daPosizionare_.insert(c);
    ApplicaPosizioni();
    SetWindowPos(hwnd_, nullptr, r.left, r.top, r.right - r.left, r.bottom - r.top,
                 SWP_NOZORDER | SWP_NOACTIVATE);
    if (modulo_.ridimensionabile) Ridimensionata(SIZE_RESTORED, true);
}

void FinestraWin32::Comando(HWND nativo, WORD codice, WORD id) {
    if (VoceMenu *voce = !nativo && menu_ ? menu_->Voce(id) : nullptr) {
        if (voce->Click && voce->Enabled) Evento(voce->Click);
        return;
    }
    Controllo *c = nativo ? DaNativo(nativo) : nullptr;
    if (!c) return;
    switch (c->TipoControllo()) {
    case Tipo::BarraStrumenti:
        if (const BottoneBarra *b = barra_->Bottone(id)) {
            const std::string chiave = b->chiave;
            Evento([&] { static_cast<BarraStrumenti *>(c)->ButtonClick(chiave); });
        }
        break;
    case Tipo::CasellaTesto:
        if (codice == EN_CHANGE)
            static_cast<CasellaTesto *>(c)->Text.Accogli(TestoFinestra(nativo));
        // Left for another control, a narrow box shows its text from the start.
        if (codice == EN_KILLFOCUS && static_cast<CasellaTesto *>(c)->stretta &&
            IsChild(hwnd_, GetFocus())) {
            SendMessageW(nativo, EM_SETSEL, 0, 0);
            SendMessageW(nativo, EM_SCROLLCARET, 0, 0);
        }
        break;
    case Tipo::CasellaSpunta:
        if (codice == BN_CLICKED) Evento([&] { static_cast<CasellaSpunta *>(c)->Premi(); });
        break;
    case Tipo::BottoneOpzione:
        if (auto *b = static_cast<BottoneOpzione *>(c); codice == BN_CLICKED && !b->Value)
            Evento([&] { b->Seleziona(); });
        break;
    case Tipo::Pulsante:
        if (auto *p = static_cast<Pulsante *>(c); codice == BN_CLICKED && p->Click)
            Evento(p->Click);
        break;
    case Tipo::Campione: // the arrow keys choose, as among option buttons
        if (auto *k = static_cast<Campione *>(c);
            (codice == BN_CLICKED || (codice == BN_SETFOCUS && !k->Marcato)) && k->Click)
            Evento(k->Click);
        break;
    default: break;
    }
}

LRESULT FinestraWin32::Notifica(const NMHDR &notifica, LPARAM l) {
    if (notifica.code == TTN_GETDISPINFOW && barra_)
        barra_->Suggerimento(*reinterpret_cast<NMTTDISPINFOW *>(l));
    return 0;
}

bool FinestraWin32::Tasto(MSG &m) {
    const Controllo *c = DaNativo(m.hwnd);
    const auto *casella = c && c->TipoControllo() == Tipo::CasellaTesto
                              ? static_cast<const CasellaTesto *>(c)
                              : nullptr;
    if (m.message == WM_KEYUP && m.wParam == VK_ESCAPE) {
        const bool premuto = escPremuto_;
        escPremuto_ = false;
        if (premuto && modulo_.KeyUp) Evento([this] { modulo_.KeyUp(kEscape); });
        return premuto;
    }
    if (m.message == WM_CHAR && m.wParam == kEscape) { // typed as a character, not by its key
        if (modulo_.KeyPress) Evento([this] { modulo_.KeyPress(kEscape); });
        return true;
    }
    if (m.message != WM_KEYDOWN) return false;
    if (m.wParam == VK_ESCAPE) {
        escPremuto_ = true;
        if (modulo_.KeyPress) Evento([this] { modulo_.KeyPress(kEscape); });
        return true;
    }
    const bool ctrl = GetKeyState(VK_CONTROL) < 0 && GetKeyState(VK_MENU) >= 0;
    if (ctrl && !casella && modulo_.KeyDown) { // in a box they belong to its text
        bool preso = false;
        Evento([&] { preso = modulo_.KeyDown(static_cast<int>(m.wParam)); });
        if (preso) return true;
    }
    if (casella && casella->KeyDown) {
        const int tasto = static_cast<int>(m.wParam);
        Evento([&] { casella->KeyDown(tasto); });
    }
    if (m.wParam != VK_RETURN) return false;
    if (c && (c->TipoControllo() == Tipo::Pulsante || c->TipoControllo() == Tipo::Campione))
        SendMessageW(m.hwnd, BM_CLICK, 0, 0);
    return true; // no control has a use for Enter but a beep
}

bool FinestraWin32::Rotella(const MSG &m) {
    if (!modulo_.Rotella) return false;
    const POINT p{static_cast<short>(LOWORD(m.lParam)), static_cast<short>(HIWORD(m.lParam))};
    const HWND sotto = WindowFromPoint(p);
    // The property of another process's window would be a pointer into that process.
    const bool nostra = sotto && GetAncestor(sotto, GA_ROOT) == hwnd_;
    const Controllo *c = nostra ? DaNativo(sotto) : nullptr;
    if (!c || c->TipoControllo() != Tipo::Disegno) return false;
    const int passi = rotella_.Aggiungi(static_cast<short>(HIWORD(m.wParam)));
    // One by one: five at once, each a tenth from either side, would leave nothing of the window.
    for (int n = std::abs(passi); n > 0; --n) Evento([&] { modulo_.Rotella(passi > 0 ? 1 : -1); });
    return true;
}

bool FinestraWin32::PreTraduci(MSG &m) {
    if (menu_ && menu_->TraduciScorciatoia(m)) return true;
    if (m.message == WM_MOUSEWHEEL && Rotella(m)) return true;
    if (Tasto(m)) return true;
    return IsDialogMessageW(hwnd_, &m) != 0;
}

} // namespace telva
