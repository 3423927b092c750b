// The language of what Qt itself says: file dialogs, print dialogs, menus of fields.
#pragma once

namespace efv::estudio {

/// Spanish, from the texts that come with the program, else from those of Qt's own installation; whatever the
/// system's language. @return whether they were found
bool PonerEspanol();

}  // namespace efv::estudio
