// What the module shows, without a screen: controls and dialogs as data, the presenter interface, the
// scripted presenter.
#pragma once

#include <quorvel/ui/arbol.h>
#include <quorvel/ui/color.h>
#include <quorvel/ui/como.h>
#include <quorvel/ui/controles.h>
#include <quorvel/ui/dialogo.h>
#include <quorvel/ui/figuras.h>
#include <quorvel/ui/grafica.h>
#include <quorvel/ui/guion.h>
#include <quorvel/ui/lista.h>
#include <quorvel/ui/pagina.h>
#include <quorvel/ui/presentador.h>
