// Whole files on the systems where the tests run natively.
#include "platform/archivio.h"
#include "platform/archivio_prova.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace telva {
namespace {

constexpr const char *kProvvisorio = ".~"; // behind the name of the file

std::string Locale(std::string percorso) {
    std::replace(percorso.begin(), percorso.end(), '\\', '/');
    return percorso;
}

bool ScriviTutto(int file, std::string_view contenuto) {
    while (!contenuto.empty()) {
        if (GuastoScrittura().scritturaPiena) return false;
        const ssize_t n = ::write(file, contenuto.data(), contenuto.size());
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) return false;
        contenuto.remove_prefix(static_cast<std::size_t>(n));
    }
    return true;
}

// The folder takes no new file: overwrite what is there, and put it back when that fails half-way.
bool ScriviSulPosto(const std::string &file, const std::string &percorso,
                    std::string_view contenuto) {
    std::string prima;
    if (!LeggiFile(percorso, prima)) return false;
    const int f = ::open(file.c_str(), O_WRONLY | O_CLOEXEC);
    if (f < 0) return false;
    const auto tronca = [f](std::string_view testo) {
        return ::ftruncate(f, static_cast<off_t>(testo.size())) == 0;
    };
    const bool ok = ScriviTutto(f, contenuto) && tronca(contenuto);
    if (!ok && ::lseek(f, 0, SEEK_SET) == 0) {
        GuastoScrittura().scritturaPiena = false;
        if (!ScriviTutto(f, prima) || !tronca(prima)) {
            ::close(f);
            return false;
        }
    }
    return ::close(f) == 0 && ok;
}

} // namespace

GuastiScrittura &GuastoScrittura() {
    static GuastiScrittura guasti;
    return guasti;
}

FileInMemoria *&FileFinti() {
    static FileInMemoria *file = nullptr;
    return file;
}

bool EsisteFile(const std::string &percorso) {
    if (FileFinti()) return FileFinti()->contains(percorso);
    struct stat s {};
    return ::stat(Locale(percorso).c_str(), &s) == 0 && S_ISREG(s.st_mode);
}

bool LeggiFile(const std::string &percorso, std::string &contenuto) {
    contenuto.clear();
    if (FileFinti()) {
        if (EsisteFile(percorso)) contenuto = FileFinti()->at(percorso);
        return EsisteFile(percorso);
    }
    const int f = ::open(Locale(percorso).c_str(), O_RDONLY | O_CLOEXEC);
    if (f < 0) return false;
    struct stat s {};
    bool ok = ::fstat(f, &s) == 0 && S_ISREG(s.st_mode);
    if (ok) contenuto.resize(static_cast<std::size_t>(s.st_size));
    std::size_t letti = 0;
    while (ok && letti < contenuto.size()) {
        const ssize_t n = ::read(f, contenuto.data() + letti, contenuto.size() - letti);
        if (n < 0 && errno == EINTR) continue;
        ok = n >= 0;
        if (n <= 0) break;
        letti += static_cast<std::size_t>(n);
    }
    ::close(f);
    contenuto.resize(ok ? letti : 0);
    return ok;
}

void TogliProvvisorio(const std::string &percorso) {
    if (!FileFinti()) ::unlink((Locale(percorso) + kProvvisorio).c_str());
}

bool ScriviFile(const std::string &percorso, std::string_view contenuto) {
    if (FileFinti()) {
        FileFinti()->insert_or_assign(percorso, contenuto);
        return true;
    }
    const std::string file = Locale(percorso);
    const std::string provvisorio = file + kProvvisorio;
    if (EsisteFile(percorso) && ::access(file.c_str(), W_OK) != 0) return false;
    const int f = GuastoScrittura().nessunFileNuovo
                      ? -1
                      : ::open(provvisorio.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    if (f < 0) return ScriviSulPosto(file, percorso, contenuto);
    bool ok = ScriviTutto(f, contenuto) && ::fsync(f) == 0;
    ok = ::close(f) == 0 && ok;
    ok = ok && ::rename(provvisorio.c_str(), file.c_str()) == 0;
    if (!ok) ::unlink(provvisorio.c_str());
    return ok;
}

} // namespace telva
