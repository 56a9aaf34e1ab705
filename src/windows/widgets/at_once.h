// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QWidget;

namespace nubivane {

/// Makes the buttons and boxes of a window answer their access keys at once. By themselves they are
/// shown pressed for a tenth of a second first, and Enter right after the key would close the
/// window without them.
void answerKeysAtOnce(QWidget& window);

}  // namespace nubivane
