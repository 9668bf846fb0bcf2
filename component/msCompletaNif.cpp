#include "component/mdoKORVANTES.h"
#include "outside/plindor/util_formulario.h"
#include "outside/screen/conversions.h"

namespace korvantes::mdoKORVANTES {}
