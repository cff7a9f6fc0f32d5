#pragma once

/// Marks what the library offers to its users; everything else stays hidden.
#if defined(_WIN32)
#if defined(ZEDOBJPARAM_BUILDING)
#define ZEDOBJPARAM_API __declspec(dllexport)
#else
#define ZEDOBJPARAM_API __declspec(dllimport)
#endif
#else
#define ZEDOBJPARAM_API __attribute__((visibility("default")))
#endif
