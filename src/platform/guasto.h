#pragma once
// A fault inside the program: an index outside its table, a number outside its field, a file that
// breaks its format. Nobody goes on after one: the boundary of the event shows it and ends the
// program without writing (see EseguiProtetto in messaggi.h).

#include <stdexcept>
#include <string>

namespace telva {

class Guasto : public std::runtime_error {
  public:
    explicit Guasto(const std::string &motivo) : std::runtime_error(motivo) {}
};

// What is told of an exception: the text of a Guasto, or what failed inside.
std::string MotivoGuasto(const std::exception &e);

// Fault found while reading `percorso` at line `riga` (1-based): the text names all three.
[[noreturn]] void GuastoInFile(const std::string &percorso, int riga, const std::string &motivo);

// Fault of an index outside 0..`ultimo` of a table.
[[noreturn]] void GuastoIndice(const char *tabella, long indice, long ultimo);

} // namespace telva
