#pragma once

class QCoreApplication;

namespace quillon {

/// Makes the application say its texts in the language of the desktop where there is a catalogue
/// for it, and in English elsewhere. To be called once, before anything is shown; the catalogues
/// belong to the application.
void installTranslations(QCoreApplication& application);

} // namespace quillon
