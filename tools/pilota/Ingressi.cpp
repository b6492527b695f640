#include "Ingressi.h"

#include "Base.h"

#include <cwctype>
#include <map>
#include <sstream>
#include <utility>

namespace telva::prove {

namespace {

INPUT Tasto(WORD vk, bool giu) {
    INPUT e{};
    e.type = INPUT_KEYBOARD;
    e.ki.wVk = vk;
    e.ki.wScan = static_cast<WORD>(MapVirtualKeyW(vk, MAPVK_VK_TO_VSC));
    const bool esteso = (vk >= VK_PRIOR && vk <= VK_DOWN) || vk == VK_INSERT || vk == VK_DELETE;
    e.ki.dwFlags = (giu ? 0U : KEYEVENTF_KEYUP) | (esteso ? KEYEVENTF_EXTENDEDKEY : 0U);
    return e;
}

WORD CodiceTasto(const std::string &nome) {
    static const std::map<std::string, WORD> nomi{
        {"Ctrl", VK_CONTROL}, {"Shift", VK_SHIFT},  {"Alt", VK_MENU},      {"Invio", VK_RETURN},
        {"Esc", VK_ESCAPE},   {"Tab", VK_TAB},      {"Spazio", VK_SPACE},  {"Indietro", VK_BACK},
        {"Canc", VK_DELETE},  {"Inizio", VK_HOME},  {"Fine", VK_END},      {"Su", VK_UP},
        {"Giu", VK_DOWN},     {"Destra", VK_RIGHT}, {"Sinistra", VK_LEFT}, {"F1", VK_F1},
        {"F4", VK_F4},        {"F10", VK_F10}};
    if (const auto trovato = nomi.find(nome); trovato != nomi.end()) return trovato->second;
    const auto lettera = Largo(nome);
    if (lettera.size() != 1) Fallisci("unknown key '" + nome + "'");
    const SHORT vk = VkKeyScanW(static_cast<wchar_t>(std::towlower(lettera[0])));
    if (vk == -1 || HIBYTE(vk) != 0) Fallisci("no plain key for '" + nome + "'");
    return LOBYTE(vk);
}

} // namespace

Eventi Accordo(const std::string &tasti) {
    std::vector<WORD> codici;
    std::istringstream parti(tasti);
    for (std::string parte; std::getline(parti, parte, '+');) codici.push_back(CodiceTasto(parte));
    Eventi eventi;
    for (auto vk : codici) eventi.push_back(Tasto(vk, true));
    for (auto i = codici.rbegin(); i != codici.rend(); ++i) eventi.push_back(Tasto(*i, false));
    return eventi;
}

Eventi Battute(const std::string &testo) {
    Eventi eventi;
    for (wchar_t c : Largo(testo)) {
        const SHORT vk = c < 128 ? VkKeyScanW(c) : SHORT{-1};
        if (vk != -1 && (HIBYTE(vk) & ~1) == 0) {
            const bool maiuscola = HIBYTE(vk) == 1;
            if (maiuscola) eventi.push_back(Tasto(VK_SHIFT, true));
            eventi.push_back(Tasto(LOBYTE(vk), true));
            eventi.push_back(Tasto(LOBYTE(vk), false));
            if (maiuscola) eventi.push_back(Tasto(VK_SHIFT, false));
            continue;
        }
        INPUT e{};
        e.type = INPUT_KEYBOARD;
        e.ki.wScan = c;
        for (DWORD su : {0UL, static_cast<DWORD>(KEYEVENTF_KEYUP)}) {
            e.ki.dwFlags = KEYEVENTF_UNICODE | su;
            eventi.push_back(e);
        }
    }
    return eventi;
}

// Position and button travel in one event: sent apart, the button may act at the old position.
INPUT Mouse(POINT schermo, DWORD bandiere) {
    const auto scala = [](LONG v, int metrica) {
        return static_cast<LONG>((v * 65536LL + 65535) / GetSystemMetrics(metrica));
    };
    INPUT e{};
    e.type = INPUT_MOUSE;
    e.mi.dx = scala(schermo.x, SM_CXSCREEN);
    e.mi.dy = scala(schermo.y, SM_CYSCREEN);
    e.mi.dwFlags = MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE | bandiere;
    return e;
}

DWORD Giu(Bottone bottone) {
    if (bottone == Bottone::Sinistro) return MOUSEEVENTF_LEFTDOWN;
    return bottone == Bottone::Medio ? MOUSEEVENTF_MIDDLEDOWN : MOUSEEVENTF_RIGHTDOWN;
}

// Each "up" flag is the bit above its "down".
DWORD Su(Bottone bottone) { return Giu(bottone) << 1U; }

void Manda(Eventi eventi) {
    const auto quanti = static_cast<UINT>(eventi.size());
    if (SendInput(quanti, eventi.data(), sizeof(INPUT)) != quanti)
        Fallisci("SendInput refused, error " + std::to_string(GetLastError()));
}

Tenuti::Tenuti(Eventi eventi) : dopo_(std::move(eventi)) {
    const auto meta = dopo_.begin() + static_cast<std::ptrdiff_t>(dopo_.size() / 2);
    Manda({dopo_.begin(), meta});
    dopo_.erase(dopo_.begin(), meta);
}

} // namespace telva::prove
