// The steps of whole files through the Windows API.
#include "platform/archivio_disco.h"
#include "platform/win32/base_win32.h"

#include <algorithm>
#include <atomic>
#include <cstdint>
#include <cstdio>
#include <cstring>

namespace telva {
namespace {

// Somebody has the file open, or is putting another in its place.
bool Occupato(DWORD errore) {
    return errore == ERROR_SHARING_VIOLATION || errore == ERROR_LOCK_VIOLATION ||
           errore == ERROR_ACCESS_DENIED || errore == ERROR_USER_MAPPED_FILE;
}

class FileWindows : public FileScritto {
  public:
    // Takes an open handle; `nuovo` is the path of a file that goes unless it is kept.
    explicit FileWindows(HANDLE file, std::wstring nuovo = {})
        : file_(file), nuovo_(std::move(nuovo)) {
        if (!nuovo_.empty()) Passeggero(true);
    }
    FileWindows(const FileWindows &) = delete;
    FileWindows &operator=(const FileWindows &) = delete;
    ~FileWindows() override {
        CloseHandle(file_);
        if (!nuovo_.empty() && !passeggero_) DeleteFileW(nuovo_.c_str());
    }

    // Only one at a time, among all that write in place.
    bool Blocca() const { return LockFile(file_, 0, kLucchetto, 1, 0) != 0; }

    bool Leggi(std::string &contenuto) override {
        LARGE_INTEGER misura{};
        if (!Inizio() || !GetFileSizeEx(file_, &misura) || GetFileType(file_) != FILE_TYPE_DISK ||
            misura.QuadPart > INT32_MAX)
            return false;
        contenuto.resize(static_cast<std::size_t>(misura.QuadPart));
        DWORD letti = 0;
        if (!ReadFile(file_, contenuto.data(), static_cast<DWORD>(contenuto.size()), &letti,
                      nullptr))
            return false;
        contenuto.resize(letti);
        return true;
    }

    bool Scrivi(std::string_view contenuto) override {
        if (!Inizio()) return false;
        while (!contenuto.empty()) {
            const auto tratto =
                static_cast<DWORD>(std::min<std::size_t>(contenuto.size(), 1u << 20));
            DWORD scritti = 0;
            if (!WriteFile(file_, contenuto.data(), tratto, &scritti, nullptr) || scritti == 0)
                return false;
            contenuto.remove_prefix(scritti);
        }
        return SetEndOfFile(file_) && FlushFileBuffers(file_);
    }

    // The name changes while the file is open: nobody can come between.
    bool Tieni(const std::string &percorso) override {
        if (passeggero_ && !Passeggero(false)) return false;
        const std::wstring nome = ALargo(percorso);
        if (nome != nuovo_ && !Rinomina(nome)) {
            Passeggero(true);
            return false;
        }
        nuovo_.clear();
        return true;
    }

  private:
    static constexpr DWORD kLucchetto = 1; // high part of a place beyond every byte

    bool Inizio() const {
        return SetFilePointerEx(file_, LARGE_INTEGER{}, nullptr, FILE_BEGIN) != 0;
    }

    // While set, the file goes with its handle, even when the process is killed.
    bool Passeggero(bool si) {
        FILE_DISPOSITION_INFO info{si};
        const bool ok =
            SetFileInformationByHandle(file_, FileDispositionInfo, &info, sizeof info) != 0;
        if (ok) passeggero_ = si;
        return ok;
    }

    bool Rinomina(const std::wstring &percorso) const {
        std::wstring intero(32768, L'\0');
        const DWORD lettere = GetFullPathNameW(percorso.c_str(), static_cast<DWORD>(intero.size()),
                                               intero.data(), nullptr);
        if (lettere == 0 || lettere >= intero.size()) return false;
        intero.resize(lettere);
        const std::size_t byte = intero.size() * sizeof(wchar_t);
        std::vector<std::uint64_t> spazio((sizeof(FILE_RENAME_INFO) + byte) / 8 + 1); // zeros
        auto *info = reinterpret_cast<FILE_RENAME_INFO *>(spazio.data());
        info->ReplaceIfExists = TRUE;
        info->FileNameLength = static_cast<DWORD>(byte);
        std::memcpy(info->FileName, intero.data(), byte);
        return SetFileInformationByHandle(file_, FileRenameInfo, info,
                                          static_cast<DWORD>(sizeof *info + byte)) != 0;
    }

    HANDLE file_;
    std::wstring nuovo_;
    bool passeggero_ = false;
};

class DiscoWindows : public Disco {
  public:
    bool Esiste(const std::string &percorso) override {
        const DWORD attributi = GetFileAttributesW(ALargo(percorso).c_str());
        return attributi != INVALID_FILE_ATTRIBUTES && (attributi & FILE_ATTRIBUTE_DIRECTORY) == 0;
    }

    bool Leggi(const std::string &percorso, std::string &contenuto) override {
        const HANDLE file = CreateFileW(ALargo(percorso).c_str(), GENERIC_READ,
                                        FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                        nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
        return file != INVALID_HANDLE_VALUE && FileWindows(file).Leggi(contenuto);
    }

    bool Protetto(const std::string &percorso) override {
        const DWORD attributi = GetFileAttributesW(ALargo(percorso).c_str());
        return attributi != INVALID_FILE_ATTRIBUTES &&
               (attributi & (FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY)) != 0;
    }

    std::unique_ptr<FileScritto> Crea(const std::string &percorso) override {
        const std::wstring nome = ALargo(percorso);
        const HANDLE file =
            CreateFileW(nome.c_str(), GENERIC_READ | GENERIC_WRITE | DELETE, 0, nullptr, CREATE_NEW,
                        FILE_ATTRIBUTE_NORMAL | FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
        if (file == INVALID_HANDLE_VALUE) return nullptr;
        return std::make_unique<FileWindows>(file, nome);
    }

    // Somebody who reads it meanwhile is no obstacle.
    std::unique_ptr<FileScritto> Apri(const std::string &percorso, bool &occupato) override {
        const HANDLE maniglia = CreateFileW(ALargo(percorso).c_str(), GENERIC_READ | GENERIC_WRITE,
                                            FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                            OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
        if (maniglia == INVALID_HANDLE_VALUE) {
            occupato = Occupato(GetLastError());
            return nullptr;
        }
        auto file = std::make_unique<FileWindows>(maniglia);
        occupato = !file->Blocca();
        return occupato ? nullptr : std::move(file);
    }

    std::vector<std::string> Accanto(const std::string &percorso) override {
        const std::size_t barra = percorso.rfind('\\') + 1;
        std::vector<std::string> trovati;
        WIN32_FIND_DATAW voce{};
        const HANDLE ricerca = FindFirstFileW((ALargo(percorso) + L"*").c_str(), &voce);
        if (ricerca == INVALID_HANDLE_VALUE) return trovati;
        do {
            const std::string nome = DaLargo(voce.cFileName);
            if (nome.starts_with(std::string_view(percorso).substr(barra)))
                trovati.push_back(percorso.substr(0, barra) + nome);
        } while (FindNextFileW(ricerca, &voce));
        FindClose(ricerca);
        return trovati;
    }

    // Fails, as it should, for a folder and for a file that somebody is writing.
    void Sgombra(const std::string &percorso) override { DeleteFileW(ALargo(percorso).c_str()); }

    std::string NumeroProprio() override {
        static std::atomic<unsigned> numero = 0;
        LARGE_INTEGER ora{};
        QueryPerformanceCounter(&ora);
        char segno[48];
        std::snprintf(segno, sizeof segno, "%lx%llx%x", GetCurrentProcessId(),
                      static_cast<unsigned long long>(ora.QuadPart), ++numero);
        return segno;
    }

    void Attendi() override { Sleep(10); }
};

} // namespace

Disco &DiscoDelSistema() {
    static DiscoWindows disco;
    return disco;
}

} // namespace telva
