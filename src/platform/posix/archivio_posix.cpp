// The steps of whole files on the systems where the tests run natively.
#include "platform/archivio_disco.h"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace telva {
namespace {

std::string Locale(std::string percorso) {
    std::replace(percorso.begin(), percorso.end(), '\\', '/');
    return percorso;
}

bool LeggiTutto(int file, std::string &contenuto) {
    struct stat s {};
    if (::fstat(file, &s) != 0 || !S_ISREG(s.st_mode) || ::lseek(file, 0, SEEK_SET) != 0)
        return false;
    contenuto.resize(static_cast<std::size_t>(s.st_size));
    std::size_t letti = 0;
    while (letti < contenuto.size()) {
        const ssize_t n = ::read(file, contenuto.data() + letti, contenuto.size() - letti);
        if (n < 0 && errno == EINTR) continue;
        if (n < 0) return false;
        if (n == 0) break;
        letti += static_cast<std::size_t>(n);
    }
    contenuto.resize(letti);
    return true;
}

class FilePosix : public FileScritto {
  public:
    // Takes an open descriptor; `nuovo` is the path of a file that goes unless it is kept.
    explicit FilePosix(int file, std::string nuovo = {}) : file_(file), nuovo_(std::move(nuovo)) {}
    FilePosix(const FilePosix &) = delete;
    FilePosix &operator=(const FilePosix &) = delete;
    ~FilePosix() override {
        if (!nuovo_.empty()) ::unlink(nuovo_.c_str());
        ::close(file_);
    }
    bool Leggi(std::string &contenuto) override { return LeggiTutto(file_, contenuto); }
    bool Scrivi(std::string_view contenuto) override {
        const auto misura = static_cast<off_t>(contenuto.size());
        if (::lseek(file_, 0, SEEK_SET) != 0) return false;
        while (!contenuto.empty()) {
            const ssize_t n = ::write(file_, contenuto.data(), contenuto.size());
            if (n < 0 && errno == EINTR) continue;
            if (n <= 0) return false;
            contenuto.remove_prefix(static_cast<std::size_t>(n));
        }
        return ::ftruncate(file_, misura) == 0 && ::fsync(file_) == 0;
    }
    bool Tieni(const std::string &percorso) override {
        if (::rename(nuovo_.c_str(), Locale(percorso).c_str()) != 0) return false;
        nuovo_.clear();
        return true;
    }

  private:
    int file_;
    std::string nuovo_;
};

// The lock says that somebody is writing. False when another has it.
bool Blocca(int file) { return ::flock(file, LOCK_EX | LOCK_NB) == 0; }

class DiscoPosix : public Disco {
  public:
    bool Esiste(const std::string &percorso) override {
        struct stat s {};
        return ::stat(Locale(percorso).c_str(), &s) == 0 && S_ISREG(s.st_mode);
    }

    bool Leggi(const std::string &percorso, std::string &contenuto) override {
        const int file = ::open(Locale(percorso).c_str(), O_RDONLY | O_CLOEXEC);
        if (file < 0) return false;
        const bool ok = LeggiTutto(file, contenuto);
        ::close(file);
        return ok;
    }

    bool Protetto(const std::string &percorso) override {
        struct stat s {};
        const std::string file = Locale(percorso);
        return ::stat(file.c_str(), &s) == 0 &&
               (S_ISDIR(s.st_mode) || ::access(file.c_str(), W_OK) != 0);
    }

    std::unique_ptr<FileScritto> Crea(const std::string &percorso) override {
        const std::string nome = Locale(percorso);
        const int file = ::open(nome.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0644);
        if (file < 0) return nullptr;
        struct stat s {};
        if (Blocca(file) && ::fstat(file, &s) == 0 && s.st_nlink > 0)
            return std::make_unique<FilePosix>(file, nome);
        ::close(file); // somebody has taken it for an abandoned one before it was locked
        return nullptr;
    }

    std::unique_ptr<FileScritto> Apri(const std::string &percorso, bool &occupato) override {
        const int file = ::open(Locale(percorso).c_str(), O_RDWR | O_CLOEXEC);
        if (file < 0) return nullptr;
        if (Blocca(file)) return std::make_unique<FilePosix>(file);
        ::close(file);
        occupato = true;
        return nullptr;
    }

    std::vector<std::string> Accanto(const std::string &percorso) override {
        const std::size_t barra = percorso.rfind('\\') + 1;
        std::vector<std::string> trovati;
        std::error_code errore;
        std::filesystem::directory_iterator voce(Locale(percorso.substr(0, barra)), errore), fine;
        for (; !errore && voce != fine; voce.increment(errore)) {
            const std::string nome = voce->path().filename().string();
            if (nome.starts_with(std::string_view(percorso).substr(barra)))
                trovati.push_back(percorso.substr(0, barra) + nome);
        }
        return trovati;
    }

    void Sgombra(const std::string &percorso) override {
        const std::string nome = Locale(percorso);
        const int file = ::open(nome.c_str(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC);
        if (file < 0) return;
        if (Blocca(file)) ::unlink(nome.c_str()); // not a folder
        ::close(file);
    }

    std::string NumeroProprio() override {
        static std::atomic<unsigned> numero = 0;
        char segno[48];
        const auto ora = std::chrono::system_clock::now().time_since_epoch().count();
        std::snprintf(segno, sizeof segno, "%x%llx%x", static_cast<unsigned>(::getpid()),
                      static_cast<unsigned long long>(ora), ++numero);
        return segno;
    }

    void Attendi() override { ::usleep(10000); }
};

} // namespace

Disco &DiscoDelSistema() {
    static DiscoPosix disco;
    return disco;
}

} // namespace telva
