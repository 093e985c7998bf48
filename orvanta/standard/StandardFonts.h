#pragma once

#include <memory>

#include <orvanta/platform/FontSystem.h>

namespace orvanta::standard {

/// Fonts without a toolkit: a catalogue of names, sizes and styles that draws nothing.
///
/// It knows "System", the system's own face, and what is registered. A weight of at least 0.3
/// (semibold on the device's scale) makes the system's face bold. A family has no other faces for
/// `fontWithSymbolicTraits` to choose from, so that gives a rendition of the same name.
[[nodiscard]] std::shared_ptr<platform::FontSystem> makeStandardFonts();

}  // namespace orvanta::standard
