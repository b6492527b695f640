#include "Finestre.h"

#include <algorithm>
#include <array>
#include <set>

namespace telva::prove {
namespace {

struct Controllo {
    HWND maniglia;
    std::string nome, classe, testo;
    RECT posto; // in the client area of the window
    bool Cornice() const { return nome.starts_with("Frame"); }
};

// Those with a name of their own; the others are labels that are only read out.
std::vector<Controllo> Controlli(const Programma &p, HWND cima) {
    std::vector<Controllo> controlli;
    for (HWND h = GetWindow(cima, GW_CHILD); h; h = GetWindow(h, GW_HWNDNEXT)) {
        const auto nome = Programma::Nome(h);
        if (nome.empty()) continue;
        std::array<wchar_t, 64> classe{};
        GetClassNameW(h, classe.data(), 64);
        RECT r{};
        GetWindowRect(h, &r);
        MapWindowPoints(nullptr, cima, reinterpret_cast<POINT *>(&r), 2);
        controlli.push_back({h, nome, Utf8(classe.data()), p.Testo(h), r});
    }
    return controlli;
}

std::string Letto(const Programma &p, const Controllo &casella) {
    return p.Testo(GetWindow(casella.maniglia, GW_HWNDPREV));
}

// Whether a text in the system's font, on as many lines as there is room for, is cut off.
bool Tagliato(const Controllo &c) {
    const LONG quadretto = static_cast<LONG>(16 * GetDpiForWindow(c.maniglia) / 96);
    const LONG larghezza = c.posto.right - c.posto.left - (c.classe == "Button" ? quadretto : 0);
    const SIZE serve = Ingombro(c.testo, larghezza);
    return !c.testo.empty() && (serve.cx > larghezza || serve.cy > c.posto.bottom - c.posto.top);
}

// Index letters are small, and a swatch's name is only for those who do not see it.
bool MostraIlTesto(const Controllo &c) {
    return (c.classe == "Button" || c.classe == "Static") && !c.nome.starts_with("Label2") &&
           !c.nome.starts_with("LabelCol(") &&
           c.nome != "LabStato"; // where it is too long it has an ellipsis and a tip
}

bool Contiene(const RECT &fuori, const RECT &dentro) {
    RECT comune{};
    IntersectRect(&comune, &fuori, &dentro);
    return EqualRect(&comune, &dentro) != 0;
}

// At odd scales neighbours may share a pixel: place and size are rounded apart.
bool SiCoprono(const Controllo &a, const Controllo &b) {
    RECT comune{};
    return IntersectRect(&comune, &a.posto, &b.posto) && comune.right - comune.left > 1 &&
           comune.bottom - comune.top > 1 && !(a.Cornice() && Contiene(a.posto, b.posto)) &&
           !(b.Cornice() && Contiene(b.posto, a.posto));
}

// On such a screen windows are laid out smaller, their texts too, which cannot be measured then.
bool SchermoPiccolo(HWND cima) {
    return AreaDiLavoro().bottom * 1440 < kAltezzaMinima * static_cast<LONG>(GetDpiForWindow(cima));
}

} // namespace

std::string Difetti(const Programma &p, HWND cima) {
    auto controlli = Controlli(p, cima);
    // Frames without border only group; a swatch stands on the frame that marks it.
    std::erase_if(controlli, [](const Controllo &c) {
        return !IsWindowVisible(c.maniglia) || c.classe == "TelvaCornice" ||
               c.nome.starts_with("LabelBordCol");
    });
    if (controlli.empty()) return "no controls";
    RECT interna{};
    GetClientRect(cima, &interna);
    std::string difetti;
    for (const Controllo &c : controlli) {
        if (c.classe == "Edit" && IsWindowEnabled(c.maniglia) && Letto(p, c).empty())
            difetti += c.nome + " nameless; ";
        if (!Contiene(interna, c.posto)) difetti += c.nome + " out; ";
        if (!SchermoPiccolo(cima) && MostraIlTesto(c) && Tagliato(c)) difetti += c.nome + " cut; ";
    }
    for (auto a = controlli.begin(); a != controlli.end(); ++a)
        for (auto b = a + 1; b != controlli.end(); ++b)
            if (SiCoprono(*a, *b)) difetti += a->nome + " on " + b->nome + "; ";
    return difetti;
}

SIZE Ingombro(const std::string &testo, LONG larghezza, LONG peso) {
    NONCLIENTMETRICSW misure{};
    misure.cbSize = sizeof misure;
    SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof misure, &misure, 0);
    misure.lfMessageFont.lfWeight = peso;
    HDC dc = GetDC(nullptr);
    HGDIOBJ prima = SelectObject(dc, CreateFontIndirectW(&misure.lfMessageFont));
    RECT serve{0, 0, larghezza, 0};
    DrawTextW(dc, Largo(testo).c_str(), -1, &serve, DT_CALCRECT | DT_NOPREFIX | DT_WORDBREAK);
    DeleteObject(SelectObject(dc, prima));
    ReleaseDC(nullptr, dc);
    return {serve.right, serve.bottom};
}

RECT AreaDiLavoro() {
    RECT area{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
    return area;
}

RECT Rettangolo(HWND finestra) {
    RECT r{};
    GetWindowRect(finestra, &r);
    return r;
}

bool SiVedeIntera(HWND finestra) { return Contiene(AreaDiLavoro(), Rettangolo(finestra)); }

void VerificaControlli(const Programma &p, HWND cima, std::span<const ControlloAtteso> attesi) {
    const auto suggerimenti = p.Suggerimenti(cima);
    std::set<std::string> visti;
    for (const Controllo &c : Controlli(p, cima)) {
        visti.insert(c.nome);
        const auto atteso = std::find_if(attesi.begin(), attesi.end(),
                                         [&](const auto &a) { return a.nome == c.nome; });
        Passo("look at " + c.nome);
        VERIFICA(atteso != attesi.end());
        if (atteso == attesi.end()) continue;
        const auto suggerimento = suggerimenti.find(c.maniglia);
        UGUALE(c.testo, atteso->didascalia);
        const std::string visto = suggerimento == suggerimenti.end() ? "" : suggerimento->second;
        // A line of state that does not find room has its whole text in the tip.
        if (c.nome != "LabStato" || visto != c.testo) UGUALE(visto, atteso->suggerimento);
        UGUALE(c.classe == "Edit" ? Letto(p, c) : "", atteso->letto);
    }
    for (const auto &atteso : attesi) {
        Passo("look for " + atteso.nome);
        VERIFICA(visti.contains(atteso.nome));
    }
}

} // namespace telva::prove
