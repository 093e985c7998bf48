// Compiled into everything that links with OrvantaLocalizer::Quick. No C++ of an application need
// name the library, and a linker leaves out what nobody names.

void qml_register_types_Orvanta();

namespace {

// NOLINTNEXTLINE(misc-use-internal-linkage): for its reference alone.
[[gnu::used]] void (*const keepsOrvanta)() = &qml_register_types_Orvanta;

}  // namespace
