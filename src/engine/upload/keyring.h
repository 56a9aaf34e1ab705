// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <optional>

namespace nubivane {

/// The desktop's keyring (Secret Service), where there is one: passwords lie there encrypted by the
/// login. Calls return when it has answered, which may take as long as a person needs to unlock it,
/// and give up after a minute. They need an application object.
namespace keyring {

enum class Outcome {
    Done,
    NothingThere,  ///< a keyring has answered, and keeps none for this account
    NoKeyring      ///< nobody answers, or nobody unlocks it
};

struct Found {
    Outcome outcome = Outcome::NoKeyring;
    QString password{};
};

/// The password kept for an account.
Found find(const QString& account);
/// Keeps it, in the place of what was kept; false where that is not possible.
bool keep(const QString& account, const QString& password);
/// Without effect where nothing is kept.
void forget(const QString& account);

}  // namespace keyring
}  // namespace nubivane
