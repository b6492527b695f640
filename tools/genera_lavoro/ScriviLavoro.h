// Writes jobs and the installation around them to disk, in the formats the suite leaves behind:
// Windows-1252 text, lines ended by CR LF. Throws std::runtime_error naming a file that cannot be
// written.
#pragma once

#include "Lavoro.h"

#include <filesystem>

namespace telva::generatore {

// Writes the job's files (STRUTTUR.STR, Ingombri.tmp, spessori, sezioni_, el_conti.tmp,
// TelvaIn.txt) into the folder, which is made when missing.
void ScriviLavoro(const std::filesystem::path &cartellaLavoro, const Lavoro &lavoro);

// Lays out a whole installation in the folder (impostazioni, custom, progra, lavori) with this job
// in it; job codes have six lower-case letters or digits. `radice` is the folder as the program
// will see it. The job and the options that are set already are kept, so that a second job goes
// beside the first.
void ScriviInstallazione(const std::filesystem::path &cartella, const std::string &codice,
                         const Lavoro &lavoro, const std::string &radice);

} // namespace telva::generatore
