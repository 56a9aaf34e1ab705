// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// Texts of the program that tests of several files look for.
namespace nubivane::testing {

/// The section of the settings in which most of them lie.
inline constexpr char SettingsSection[] = "Nubivane\\6.0.0\\Settings";
inline constexpr char SaveFailed[] = "An error occurred while saving the project.";
inline constexpr char NoConnection[] = "Unable to establish a connection to the remote server";

}  // namespace nubivane::testing
