#ifndef ORXExport_H
#define ORXExport_H

/**
 * @file
 * Visibility of everything that a host declares. Interfaces are shared between libraries that hide their symbols
 * by default, so their tables and type information have to stay visible.
 */

#if defined(__GNUC__)
#define ORXHostExport __attribute__((visibility("default")))
#else
#define ORXHostExport
#endif

#endif
