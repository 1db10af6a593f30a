#pragma once
// The order of the shape table: by layer, then by rising area, and with equal areas a copper
// shape (polarity 2) first. Later passes find a layer's shapes by binary search, and small
// shapes come before the large ones that may hold them.

// Sorts the table in that order; shapes equal in all three keep their order.
void SortShapeTable();

// Computes every area (ShapeArea), sorts the table and rebuilds the bounding boxes. Routines
// that work by shape index run after this; firstPoint stays valid, only the records move.
void SortShapes();
