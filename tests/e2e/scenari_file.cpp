// Several real programs and one set of files.
#include "LavoroPiccolo.h"

#include <algorithm>
#include <array>
#include <memory>

using namespace telva::prove;

// Three programs on one job that end at once: each answer is written whole, one of them stays.
SCENARIO(tre_programmi_insieme) {
    constexpr int kGiri = 5;
    constexpr UINT kAggiornaEdEsci = 1001;
    const std::array<std::string, 3> liste = {"8", "9,14", "7,7-9"};
    const auto lavoro = LavoroPiccolo(amb);
    for (int giro = 0; giro < kGiri; ++giro) {
        std::vector<std::unique_ptr<Programma>> programmi;
        std::vector<HWND> finestre;
        for (const std::string &lista : liste) {
            ScriviIngresso(lavoro, "Insieme", lista, 1);
            programmi.push_back(
                std::make_unique<Programma>(amb.telva, amb.Argomento("LAVORO=prova1|")));
            finestre.push_back(programmi.back()->Principale());
            UGUALE(programmi.back()->Testo("StringaSel"), lista);
        }
        for (const HWND finestra : finestre) PostMessageW(finestra, WM_COMMAND, kAggiornaEdEsci, 0);
        for (const auto &programma : programmi) UGUALE(programma->AttendiFine(), 0U);
        const std::string rimasta = LeggiByte(lavoro / "TelvaOut.txt").value_or("(no file)");
        VERIFICA(std::ranges::count(liste, rimasta.substr(0, rimasta.find("\r\n"))) == 1);
        for (const auto &voce : std::filesystem::directory_iterator(lavoro))
            VERIFICA(voce.path().wstring().find(L".~") == std::wstring::npos);
    }
}
