// Export control for the vtyconf library.
//
// VTYCONF_API marks the classes and functions that the shared library exports;
// everything else is built with hidden visibility. A static build (VTYCONF_STATIC)
// exports nothing special.
#pragma once

#if defined(VTYCONF_STATIC)
#define VTYCONF_API
#elif defined(_WIN32)
#if defined(VTYCONF_BUILDING_LIBRARY)
#define VTYCONF_API __declspec(dllexport)
#else
#define VTYCONF_API __declspec(dllimport)
#endif
#else
#define VTYCONF_API __attribute__((visibility("default")))
#endif
