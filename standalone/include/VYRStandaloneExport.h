#ifndef VYRStandaloneExport_H
#define VYRStandaloneExport_H

/// Visibility of the public face of the stand-alone host; everything else in it is hidden.
#if defined(__GNUC__)
#define VYRStandaloneExport __attribute__((visibility("default")))
#else
#define VYRStandaloneExport
#endif

#endif
