#ifndef VYRCfdBaseExport_H
#define VYRCfdBaseExport_H

/// Visibility of what the module gives to other libraries; everything else in it is hidden. The second is for what is
/// inside an exported class and nobody else's business.
#if defined(__GNUC__)
#define VYRCfdBaseExport __attribute__((visibility("default")))
#define VYRCfdBaseLocal __attribute__((visibility("hidden")))
#else
#define VYRCfdBaseExport
#define VYRCfdBaseLocal
#endif

#endif
