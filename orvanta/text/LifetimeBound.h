#pragma once

/// Marks a returned view, reference or pointer that is valid only as long as what it came from: the
/// object when it stands behind a member function, the argument when it stands behind a parameter.
/// Clang then warns where the result outlives a temporary. Other compilers ignore it.
#if defined(__clang__) && defined(__has_cpp_attribute)
#if __has_cpp_attribute(clang::lifetimebound)
#define ORVANTA_LIFETIME_BOUND [[clang::lifetimebound]]
#endif
#endif
#ifndef ORVANTA_LIFETIME_BOUND
#define ORVANTA_LIFETIME_BOUND
#endif
