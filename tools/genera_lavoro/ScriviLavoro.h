// Writes jobs and the installation around them to disk, in the formats the suite leaves behind:
// Windows-1252 text, lines ended by CR LF.
#pragma once

#include "Lavoro.h"

#include <filesystem>
#include <optional>
#include <string>

namespace telva::generatore {

inline constexpr const char *kRadicePredefinita = "c:\\telva";

// Writes the job's files (STRUTTUR.STR, Ingombri.tmp, spessori, sezioni_, el_conti.tmp,
// TelvaIn.txt) into the folder, which is made when missing.
// Throws std::runtime_error naming the file that cannot be written.
void ScriviLavoro(const std::filesystem::path &cartellaLavoro, const Lavoro &lavoro);

// Lays out a whole installation in the folder (impostazioni, custom, progra, lavori) with this job
// in it; job codes have six lower-case letters or digits. `radice` is the folder as the program
// will see it (no value = kRadicePredefinita). Settings and options that are already there are
// kept, so that a second job goes beside the first; only a given `radice` rewrites dirlav. Returns
// the folder of the job. Throws std::runtime_error on a file that cannot be written.
std::filesystem::path ScriviInstallazione(const std::filesystem::path &cartella,
                                          const std::string &codice, const Lavoro &lavoro,
                                          const std::optional<std::string> &radice = std::nullopt);

} // namespace telva::generatore
