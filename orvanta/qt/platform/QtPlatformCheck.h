#pragma once

namespace orvanta::qt {

/// To be called by what an application's Qt platform is made with.
void noteQtPlatform();

/// Prints a warning when no part of a Qt platform was ever made, once in a process: without one the
/// widgets would not hear of a change of language.
void warnWithoutQtPlatform();

}  // namespace orvanta::qt
