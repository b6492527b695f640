// prove_e2e --telva EXE --dati INSTALLATION [--solo NAMES] [--foto DIR]
// NAMES have commas between them; "mouse_*" stands for all that begin so.
// The exit code is the number of scenarios that failed, at most 100.
#include "Prove.h"

#include <shellapi.h>

#include <algorithm>
#include <cstdio>
#include <deque>
#include <map>

namespace telva::prove {
namespace {

using Corpo = void (*)(const Ambiente &);

std::map<std::string, Corpo> &Elenco() {
    static std::map<std::string, Corpo> elenco;
    return elenco;
}

int controlli = 0, errori = 0;
std::deque<std::string> passi; // the last ones
constexpr std::size_t kPassiMostrati = 12;

void Errore(const std::string &testo) {
    ++errori;
    std::printf("    FAILED %s\n", testo.c_str());
    std::string fatto;
    for (const auto &passo : passi) fatto += (fatto.empty() ? "" : " | ") + passo;
    if (!fatto.empty()) std::printf("           after: %s\n", fatto.c_str());
}

bool Esegui(const std::string &nome, Corpo corpo, const Ambiente &amb) {
    controlli = errori = 0;
    passi.clear();
    alFallimento = [&] {
        if (!amb.foto.empty() && errori == 0) ScriviBmp(Schermo(), amb.foto / (nome + ".bmp"));
    };
    const ULONGLONG da = GetTickCount64();
    try {
        corpo(amb);
        if (controlli == 0) Errore("the scenario checked nothing");
    } catch (const std::exception &e) {
        Errore(e.what());
    }
    std::printf("%s %s (%d checks, %llu ms)\n", errori ? "FAILED" : "ok    ", nome.c_str(),
                controlli, GetTickCount64() - da);
    std::fflush(stdout);
    return errori == 0;
}

// The long ones run by name only.
bool Scelto(const std::string &nome, const std::string &solo) {
    if (solo.empty()) return !nome.starts_with("lungo_");
    std::istringstream voci(solo);
    for (std::string voce; std::getline(voci, voce, ',');)
        if (voce.ends_with('*') ? nome.starts_with(voce.substr(0, voce.size() - 1)) : nome == voce)
            return true;
    return false;
}

int EseguiTutti(const Ambiente &amb, const std::string &solo) {
    int eseguiti = 0, falliti = 0;
    for (const auto &[nome, corpo] : Elenco())
        if (Scelto(nome, solo)) {
            ++eseguiti;
            if (!Esegui(nome, corpo, amb)) ++falliti;
        }
    if (eseguiti == 0) {
        std::printf("no scenario of '%s'; there are:\n", solo.c_str());
        for (const auto &voce : Elenco()) std::printf("  %s\n", voce.first.c_str());
    }
    std::printf("%d scenarios, %d failed\n", eseguiti, falliti);
    return eseguiti == 0 ? 1 : std::min(falliti, 100);
}

} // namespace

Registra::Registra(const std::string &nome, Corpo corpo) { Elenco()[nome] = corpo; }

void Verifica(bool esito, const std::string &testo, const char *file, int riga) {
    ++controlli;
    if (esito) return;
    if (alFallimento) alFallimento();
    Errore(std::filesystem::path(file).filename().string() + ":" + std::to_string(riga) + " " +
           testo);
}

std::filesystem::path Ambiente::Lavori() const {
    std::wstring riga = Largo(LeggiByte(dati / "impostazioni" / "dirlav").value_or(""));
    riga = riga.substr(0, riga.find_first_of(L",\r\n"));
    std::erase(riga, L'"');
    CharLowerBuffW(riga.data(), static_cast<DWORD>(riga.size()));
    return riga.ends_with(L'\\') ? riga : riga + L'\\';
}

std::wstring Ambiente::Argomento(const std::string &altro) const {
    return L"|diroot=" + dati.wstring() + L"|" + Largo(altro);
}

} // namespace telva::prove

int main() {
    using namespace telva::prove;
    SetProcessDpiAwarenessContext(DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE_V2);
    SetConsoleOutputCP(CP_UTF8);
    int n = 0;
    wchar_t **argomenti = CommandLineToArgvW(GetCommandLineW(), &n);
    std::map<std::wstring, std::wstring> valori;
    for (int i = 1; i + 1 < n; i += 2) valori[argomenti[i]] = argomenti[i + 1];
    const Ambiente amb{valori[L"--telva"], valori[L"--dati"], valori[L"--foto"]};
    if (amb.telva.empty() || amb.dati.empty()) {
        std::printf("prove_e2e --telva EXE --dati DIR [--solo NAMES] [--foto DIR]\n");
        return 101;
    }
    if (!amb.foto.empty()) std::filesystem::create_directories(amb.foto);
    alPasso = [](const std::string &passo) {
        passi.push_back(passo);
        if (passi.size() > kPassiMostrati) passi.pop_front();
    };
    return EseguiTutti(amb, Utf8(valori[L"--solo"]));
}
