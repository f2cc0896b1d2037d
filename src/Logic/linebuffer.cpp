#include "Logic/linebuffer.h"
