#pragma once
// Property matching between polylines, lightweight or 2D, in either direction.
#include "ZqCallbacks.h"

// Copies from source onto target (each a lightweight or a 2D polyline) the
// linetype generation flag and, when the source has one, its uniform width:
// the constant width of a lightweight source, or else the width every
// segment has at both ends. A lightweight target takes the width as its
// constant width; a 2D target as its default widths and every vertex's
// start and end width. Returns 5100, or -5001 when either object is not a
// polyline or the target is not open for write.
int MatchPolylineProperties(const OdDbEntity* source, OdDbObject* target);
