#ifndef VYRCfdBaseExport_H
#define VYRCfdBaseExport_H

/// Visibility of what the module gives to other libraries; everything else in it is hidden.
#if defined(__GNUC__)
#define VYRCfdBaseExport __attribute__((visibility("default")))
#else
#define VYRCfdBaseExport
#endif

#endif
