#include "platform/tabella.h"

namespace telva {

const char *NomeTabella(const char *nome) { return nome; }

} // namespace telva
