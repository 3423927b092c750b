// The question which kind of installation to design.
#pragma once

#include <quorvel/ui/dialogo.h>

class CDlgAsistenteTipoInstalacion : public efv::ui::Dialogo {
public:
    CDlgAsistenteTipoInstalacion();

    /// 0 on the grid, 1 stand-alone, 3 cancelled; 2 is a command without a control.
    int iTipo = 3;
};
