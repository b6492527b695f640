#include "platform/win32/finestra_win32.h"

#include "platform/messaggi.h"
#include "platform/mostrabile.h"
#include "platform/win32/schermo_win32.h"

#include <string_view>
#include <utility>

namespace telva {

// ---- making and showing ------------------------------------------------------------------------

FinestraWin32::FinestraWin32(Modulo &modulo, HWND proprietaria)
    : modulo_(modulo), misura_(modulo, *this), tastiera_(modulo, *this) {
    const double dpiPrima = modulo.dpi;
    modulo.dpi = DpiDi(proprietaria);
    CreaNativa(proprietaria);
    modulo.dpi = DpiDi(hwnd_);
    misura_.Riduci();
    if (!modulo.barraMenu.empty()) menu_ = std::make_unique<MenuWin32>(modulo, *this);
    CreaControlli();
    modulo.pari = this;
    misura_.Nata(modulo.dpi != dpiPrima);
}

FinestraWin32::~FinestraWin32() {
    modulo_.pari = nullptr;
    TogliNomi();
    SetWindowLongPtrW(hwnd_, GWLP_USERDATA, 0);
    DestroyWindow(hwnd_);
}

void FinestraWin32::RegistraClassi() {
    WNDCLASSEXW classe{};
    classe.lpfnWndProc = Procedura;
    classe.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    classe.hIcon = LoadIconW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(1));
    classe.hbrBackground = reinterpret_cast<HBRUSH>(static_cast<INT_PTR>(COLOR_BTNFACE + 1));
    for (const wchar_t *nome : {kClasseFinestra, kClasseDialogo}) {
        classe.lpszClassName = nome;
        RegistraClasse(classe);
    }
}

std::string FinestraWin32::Titolo() const {
    return Mostrabile(modulo_.Caption(), kCaratteriTitolo);
}

void FinestraWin32::CreaNativa(HWND proprietaria) {
    RegistraClassi();
    const bool principale = modulo_.ridimensionabile;
    const DWORD stile =
        principale ? WS_OVERLAPPEDWINDOW : WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_CLIPSIBLINGS;
    hwnd_ = Richiesto(CreateWindowExW(principale ? 0 : WS_EX_DLGMODALFRAME,
                                      principale ? kClasseFinestra : kClasseDialogo,
                                      ALargo(Titolo()).c_str(), stile, CW_USEDEFAULT, CW_USEDEFAULT,
                                      100, 100, proprietaria, nullptr, GetModuleHandleW(nullptr),
                                      nullptr),
                      "CreateWindowEx");
    SetWindowLongPtrW(hwnd_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    AssegnaNome(hwnd_, modulo_.NomeControllo());
}

void FinestraWin32::CreaControlli() {
    suggerimenti_.Crea(hwnd_);
    font_ = FontWin32(modulo_.dpi);
    suggerimenti_.Adegua(font_[StileFont::Normale], modulo_.dpi);
    controlli_.Crea(modulo_, *this);
}

void FinestraWin32::TogliNomi() const {
    for (const auto &p : controlli_) TogliNome(p->Maniglia());
    TogliNome(hwnd_);
}

FinestraWin32 *FinestraWin32::Di(HWND finestra) {
    const HWND cima = finestra ? GetAncestor(finestra, GA_ROOT) : nullptr;
    wchar_t classe[32] = L"";
    if (!cima || !GetClassNameW(cima, classe, 32)) return nullptr;
    const std::wstring_view nome(classe);
    if (nome != kClasseFinestra && nome != kClasseDialogo) return nullptr;
    return reinterpret_cast<FinestraWin32 *>(GetWindowLongPtrW(cima, GWLP_USERDATA));
}

void FinestraWin32::Mostra(int comando) {
    ShowWindow(hwnd_, comando);
    UpdateWindow(hwnd_);
    if (modulo_.fuoco) modulo_.fuoco->Avvisa(Campo::Fuoco);
}

void FinestraWin32::MostraPopup(VoceMenu &menu) {
    if (menu_) menu_->Popup(menu);
}

void FinestraWin32::Cambia(Controllo &, Campo campo) {
    if (campo == Campo::Posizione) misura_.Applica();
    if (campo == Campo::Didascalia) MostraTesto(hwnd_, Titolo());
    if (campo == Campo::Puntatore) AggiornaPuntatore();
}

void FinestraWin32::Suggerisci(HWND nativo, std::wstring testo) {
    suggerimenti_.Imposta(nativo, std::move(testo));
}

// ---- events ------------------------------------------------------------------------------------

void FinestraWin32::Evento(const std::function<void()> &evento) {
    EseguiProtetto([&] {
        evento();
        if (modulo_.DopoEvento) modulo_.DopoEvento();
        ApplicaPosizioni();
    });
}

LRESULT CALLBACK FinestraWin32::Procedura(HWND hwnd, UINT messaggio, WPARAM w, LPARAM l) {
    auto *f = reinterpret_cast<FinestraWin32 *>(GetWindowLongPtrW(hwnd, GWLP_USERDATA));
    if (!f || f->hwnd_ != hwnd) return DefWindowProcW(hwnd, messaggio, w, l);
    LRESULT esito = 0;
    EseguiProtetto([&] { esito = f->Messaggio(messaggio, w, l); });
    return esito;
}

LRESULT FinestraWin32::Messaggio(UINT messaggio, WPARAM w, LPARAM l) {
    const auto nativo = reinterpret_cast<HWND>(l);
    switch (messaggio) {
    case WM_SIZE: misura_.Cambiata(w); return 0;
    case WM_GETMINMAXINFO: misura_.Minima(*reinterpret_cast<MINMAXINFO *>(l)); return 0;
    case WM_DPICHANGED: DpiCambiato(HIWORD(w), *reinterpret_cast<const RECT *>(l)); return 0;
    case WM_COMMAND: Comando(nativo, HIWORD(w), LOWORD(w)); return 0;
    case WM_MENUCHAR:
        if (!menu_) break;
        return menu_->Lettera(reinterpret_cast<HMENU>(l), static_cast<wchar_t>(LOWORD(w)));
    case WM_NEXTDLGCTL: // an arrow key inside a group
        if (LOWORD(l)) SetFocus(reinterpret_cast<HWND>(w));
        return 0;
    case WM_NOTIFY: controlli_.Notifica(*reinterpret_cast<const NMHDR *>(l)); return 0;
    case WM_DRAWITEM: DisegnaNativo(*reinterpret_cast<const DRAWITEMSTRUCT *>(l)); return TRUE;
    case WM_CTLCOLORSTATIC:
    case WM_CTLCOLOREDIT: return ColoraNativo(reinterpret_cast<HDC>(w), nativo);
    case WM_SYSCOLORCHANGE: controlli_.ColoriCambiati(); break;
    case WM_ERASEBKGND: controlli_.CancellaSfondo(hwnd_, reinterpret_cast<HDC>(w)); return 1;
    case WM_SETCURSOR:
        if (LOWORD(l) == HTCLIENT && MostraPuntatore(modulo_, reinterpret_cast<HWND>(w)))
            return TRUE;
        break;
    case WM_ENTERMENULOOP: Distrai(); break;
    case WM_ACTIVATE: Attivata(LOWORD(w) != WA_INACTIVE); break;
    case WM_SETFOCUS: FuocoAllaFinestra(); return 0;
    case WM_ENDSESSION: // the process ends after this, without a word
        if (w && modulo_.ridimensionabile) ScriviPosto(misura_.Posto());
        return 0;
    case WM_CLOSE: Evento([this] { modulo_.Chiudi(); }); return 0;
    default: break;
    }
    return DefWindowProcW(hwnd_, messaggio, w, l);
}

void FinestraWin32::Comando(HWND nativo, WORD codice, WORD id) {
    PariWin32 *p = nativo ? PariDiNativo(nativo) : nullptr;
    if (p) p->Comando(codice, id);
    if (!nativo && menu_) menu_->Comando(id);
}

void FinestraWin32::VoceCambiata(const VoceMenu &voce) {
    for (const auto &p : controlli_) p->VoceCambiata(voce);
}

void FinestraWin32::DpiCambiato(UINT dpi, const RECT &proposto) {
    modulo_.dpi = dpi;
    misura_.Riduci();
    const FontWin32 prima =
        std::exchange(font_, FontWin32(modulo_.dpi)); // goes when nobody uses it
    suggerimenti_.Adegua(font_[StileFont::Normale], modulo_.dpi);
    if (menu_) menu_->DpiCambiato(dpi);
    for (const auto &p : controlli_) {
        p->AggiornaFont(true);
        p->DpiCambiato();
        DaPosizionare(*p);
    }
    ApplicaPosizioni();
    Colloca(hwnd_, proposto);
    if (modulo_.ridimensionabile) misura_.Cambiata(SIZE_RESTORED, true);
}

// ---- focus and keyboard ------------------------------------------------------------------------

bool FinestraWin32::PortaFuoco(HWND nativo) {
    if (!IsWindowEnabled(nativo)) return false;
    ultimoFuoco_ = nativo;
    SetFocus(nativo);
    return true;
}

void FinestraWin32::LasciaFuoco(HWND nativo) {
    if (ultimoFuoco_ == nativo) ultimoFuoco_ = nullptr;
    if (GetFocus() == nativo) SetFocus(hwnd_);
}

void FinestraWin32::Attivata(bool si) {
    if (si) return;
    Distrai();
    const HWND fuoco = GetFocus();
    ultimoFuoco_ = fuoco && IsChild(hwnd_, fuoco) ? fuoco : nullptr;
    tastiera_.Lascia();
}

void FinestraWin32::FuocoAllaFinestra() const {
    if (ultimoFuoco_ && IsWindowEnabled(ultimoFuoco_) && IsWindowVisible(ultimoFuoco_))
        SetFocus(ultimoFuoco_);
}

void FinestraWin32::Distrai() {
    if (modulo_.Distratta) Evento(modulo_.Distratta);
}

bool FinestraWin32::PreTraduci(MSG &m) {
    if (m.message == WM_KEYDOWN || m.message == WM_SYSKEYDOWN) Distrai();
    if (menu_ && menu_->TraduciScorciatoia(m)) return true;
    if (tastiera_.Tratta(m)) return true;
    const bool trattato = IsDialogMessageW(hwnd_, &m) != 0;
    controlli_.SegnaPredefinito(); // which that takes away and does not give back
    return trattato;
}

} // namespace telva
