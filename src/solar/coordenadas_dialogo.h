// The picture that explains how an orientation counts.
#pragma once

#include <quorvel/ui/dialogo.h>

class CDlgImgCoordenadas : public efv::ui::Dialogo {
public:
    CDlgImgCoordenadas();
};
