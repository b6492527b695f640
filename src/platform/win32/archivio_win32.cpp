// Whole files through the Windows API.
#include "platform/archivio.h"
#include "platform/win32/base_win32.h"

#ifdef TELVA_PROVE
#include "platform/archivio_prova.h"
#endif

#include <algorithm>

namespace telva {

#ifdef TELVA_PROVE
GuastiScrittura &GuastoScrittura() {
    static GuastiScrittura guasti;
    return guasti;
}
#endif

namespace {

#ifdef TELVA_PROVE
bool DiscoPieno() { return GuastoScrittura().scritturaPiena; }
bool NessunFileNuovo() { return GuastoScrittura().nessunFileNuovo; }
#else
constexpr bool DiscoPieno() { return false; }
constexpr bool NessunFileNuovo() { return false; }
#endif

constexpr const wchar_t *kProvvisorio = L".~"; // behind the name of the file

class File {
  public:
    File(const std::wstring &percorso, DWORD accesso, DWORD condivisione, DWORD modo)
        : file_(CreateFileW(percorso.c_str(), accesso, condivisione, nullptr, modo,
                            FILE_ATTRIBUTE_NORMAL, nullptr)) {}
    File(const File &) = delete;
    ~File() { Chiudi(); }
    bool Aperto() const { return file_ != INVALID_HANDLE_VALUE; }
    HANDLE Maniglia() const { return file_; }
    bool Chiudi() {
        if (!Aperto()) return true;
        const bool ok = CloseHandle(file_) != 0;
        file_ = INVALID_HANDLE_VALUE;
        return ok;
    }
    bool Scrivi(std::string_view byte) const {
        while (!byte.empty()) {
            const auto tratto = static_cast<DWORD>(std::min<std::size_t>(byte.size(), 1u << 20));
            DWORD scritti = 0;
            if (DiscoPieno() || !WriteFile(file_, byte.data(), tratto, &scritti, nullptr) ||
                scritti == 0)
                return false;
            byte.remove_prefix(scritti);
        }
        return true;
    }
    // While set, the file goes with its handle, even when the process is killed.
    void Passeggero(bool si) const {
        FILE_DISPOSITION_INFO info{si};
        SetFileInformationByHandle(file_, FileDispositionInfo, &info, sizeof info);
    }
    bool Inizio() const {
        return SetFilePointerEx(file_, LARGE_INTEGER{}, nullptr, FILE_BEGIN) != 0;
    }

  private:
    HANDLE file_;
};

// No new file can take the place of the old one: overwrite what is there, and put it back when that
// fails half-way. Somebody who reads it meanwhile is no obstacle.
bool ScriviSulPosto(const std::string &percorso, std::string_view contenuto) {
    std::string prima;
    if (!LeggiFile(percorso, prima)) return false;
    File file(ALargo(percorso), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, OPEN_EXISTING);
    if (!file.Aperto()) return false;
    if (file.Scrivi(contenuto) && SetEndOfFile(file.Maniglia()) &&
        FlushFileBuffers(file.Maniglia()))
        return file.Chiudi();
    if (file.Inizio() && file.Scrivi(prima)) SetEndOfFile(file.Maniglia());
    return false;
}

} // namespace

bool EsisteFile(const std::string &percorso) {
    const DWORD attributi = GetFileAttributesW(ALargo(percorso).c_str());
    return attributi != INVALID_FILE_ATTRIBUTES && (attributi & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

bool LeggiFile(const std::string &percorso, std::string &contenuto) {
    contenuto.clear();
    const File file(ALargo(percorso), GENERIC_READ,
                    FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, OPEN_EXISTING);
    LARGE_INTEGER misura{};
    if (!file.Aperto() || !GetFileSizeEx(file.Maniglia(), &misura)) return false;
    if (GetFileType(file.Maniglia()) != FILE_TYPE_DISK || misura.QuadPart > INT32_MAX) return false;
    contenuto.resize(static_cast<std::size_t>(misura.QuadPart));
    DWORD letti = 0;
    const bool ok = ReadFile(file.Maniglia(), contenuto.data(),
                             static_cast<DWORD>(contenuto.size()), &letti, nullptr) != 0;
    contenuto.resize(ok ? letti : 0);
    return ok;
}

void TogliProvvisorio(const std::string &percorso) {
    DeleteFileW((ALargo(percorso) + kProvvisorio).c_str());
}

bool ScriviFile(const std::string &percorso, std::string_view contenuto) {
    const std::wstring destinazione = ALargo(percorso);
    const DWORD attributi = GetFileAttributesW(destinazione.c_str());
    if (attributi != INVALID_FILE_ATTRIBUTES &&
        (attributi & (FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY)) != 0)
        return false;
    const std::wstring provvisorio = destinazione + kProvvisorio;
    File file(provvisorio, GENERIC_WRITE | DELETE, 0,
              NessunFileNuovo() ? OPEN_EXISTING : CREATE_ALWAYS);
    if (!file.Aperto()) return ScriviSulPosto(percorso, contenuto);
    file.Passeggero(true);
    bool ok = file.Scrivi(contenuto) && FlushFileBuffers(file.Maniglia()) != 0;
    if (ok) file.Passeggero(false);
    ok = file.Chiudi() && ok;
    if (ok && MoveFileExW(provvisorio.c_str(), destinazione.c_str(),
                          MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0)
        return true;
    DeleteFileW(provvisorio.c_str());
    return ok && ScriviSulPosto(percorso, contenuto); // somebody holds it open
}

} // namespace telva
