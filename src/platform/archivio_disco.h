#pragma once
// The steps that reading and writing whole files is made of. Each system provides them; the rules
// that put them together stand once, in archivio.cpp. Another Disco can take the system's place.

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace telva {

// A file open for writing, shut against every other writer. A new one goes with this object, and
// with a killed program where the system can do that, unless it has been kept.
class FileScritto {
  public:
    virtual ~FileScritto() = default;
    // All bytes that are in it.
    virtual bool Leggi(std::string &contenuto) = 0;
    // Puts these bytes in the place of all that is in it, down to the disk.
    virtual bool Scrivi(std::string_view contenuto) = 0;
    // Lets a new file stay, under this name: its own, or that of another file, whose place it
    // takes. False while somebody holds that one; another attempt may succeed.
    virtual bool Tieni(const std::string &percorso) = 0;
};

class Disco {
  public:
    virtual ~Disco() = default;
    virtual bool Esiste(const std::string &percorso) = 0; // as a file
    virtual bool Leggi(const std::string &percorso, std::string &contenuto) = 0;
    // A folder, or a file that is marked as read-only.
    virtual bool Protetto(const std::string &percorso) = 0;
    // A file that was not there. nullptr when the folder does not take it, or when anything has
    // that name already, be it a folder or a link.
    virtual std::unique_ptr<FileScritto> Crea(const std::string &percorso) = 0;
    // A file that is there. nullptr when it cannot be had; `occupato` when only because of
    // somebody who may let go of it.
    virtual std::unique_ptr<FileScritto> Apri(const std::string &percorso, bool &occupato) = 0;
    // Paths of the files in the same folder whose names begin with that of `percorso`.
    virtual std::vector<std::string> Accanto(const std::string &percorso) = 0;
    // Removes a file, unless somebody is writing it.
    virtual void Sgombra(const std::string &percorso) = 0;
    // A number that no other writer has: of the process and of the moment.
    virtual std::string NumeroProprio() = 0;
    // A pause in which somebody else may finish.
    virtual void Attendi() = 0;
};

Disco &DiscoDelSistema();

// The one that reading and writing uses; nullptr stands for the system's.
void ImpostaDisco(Disco *disco);

} // namespace telva
