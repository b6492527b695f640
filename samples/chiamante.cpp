// A minimal caller of Telva: hands in a selection, waits, prints the numbers that come back.
//   chiamante TELVA.EXE ROOT JOB KIND [LIST]
// Exit code: 0 a list was handed back, 1 cancelled, 2 something is wrong.
//   cl /std:c++20 /EHsc chiamante.cpp
//   x86_64-w64-mingw32-g++-posix -std=c++20 -municode -static chiamante.cpp -o chiamante.exe
#include <windows.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <set>
#include <string>

namespace fs = std::filesystem;

namespace {

// The jobs folder named by the installation, in Windows-1252; quotes around it are allowed.
fs::path CartellaLavori(const fs::path &radice) {
    std::ifstream file(radice / "impostazioni" / "dirlav");
    std::string riga;
    std::getline(file, riga);
    std::erase_if(riga, [](char c) { return c == '"' || c == '\r'; });
    std::wstring largo(riga.size(), L'\0');
    const int byte = static_cast<int>(riga.size());
    MultiByteToWideChar(1252, 0, riga.data(), byte, largo.data(), byte);
    return largo;
}

// 1,1-3,7 means 1 2 3 7: ranges are opened, repeated numbers count once.
std::set<int> Numeri(const fs::path &file) {
    std::ifstream ingresso(file);
    std::set<int> numeri;
    for (std::string voce; std::getline(ingresso, voce, ',');) {
        int da = 0, a = 0;
        const int letti = std::sscanf(voce.c_str(), "%d-%d", &da, &a);
        if (letti == 1) a = da;
        for (int n = da; letti >= 1 && n <= a; ++n) numeri.insert(n);
    }
    return numeri;
}

// Runs the program and waits for its end; its exit code, or -1 when it cannot be started.
int Esegui(const std::wstring &telva, const std::wstring &argomento) {
    std::wstring riga = L"\"" + telva + L"\" \"" + argomento + L"\"";
    STARTUPINFOW avvio{};
    avvio.cb = sizeof avvio;
    PROCESS_INFORMATION processo{};
    if (!CreateProcessW(telva.c_str(), riga.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                        &avvio, &processo))
        return -1;
    DWORD codice = 0;
    WaitForSingleObject(processo.hProcess, INFINITE);
    GetExitCodeProcess(processo.hProcess, &codice);
    CloseHandle(processo.hThread);
    CloseHandle(processo.hProcess);
    return static_cast<int>(codice);
}

} // namespace

int wmain(int argc, wchar_t **argv) {
    if (argc < 5) {
        std::puts("chiamante TELVA.EXE ROOT JOB KIND [LIST]");
        return 2;
    }
    const std::wstring radice = argv[2], lavoro = argv[3];
    const fs::path cartella = CartellaLavori(radice) / lavoro, uscita = cartella / "TelvaOut.txt";
    std::error_code errore;
    fs::remove(uscita, errore); // an old answer must not be taken for a new one
    std::ofstream ingresso(cartella / "TelvaIn.txt", std::ios::binary);
    ingresso << "Selection for a caller\r\n"
             << fs::path(argc > 5 ? argv[5] : L"").string() << "\r\n"
             << fs::path(argv[4]).string() << "\r\n";
    ingresso.close();
    if (errore || !ingresso) return 2;
    if (Esegui(argv[1], L"|diroot=" + radice + L"|LAVORO=" + lavoro + L"|") != 0) return 2;
    if (!fs::exists(uscita)) return 1;
    for (const int numero : Numeri(uscita)) std::printf("%d\n", numero);
    return 0;
}
