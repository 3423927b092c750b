// Visibility of the interface: everything else in the library is hidden.
#pragma once

#if defined(_WIN32)
#if defined(EFV_COMPILANDO)
#define EFV_API __declspec(dllexport)
#else
#define EFV_API __declspec(dllimport)
#endif
#else
#define EFV_API __attribute__((visibility("default")))
#endif
