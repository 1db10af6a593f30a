#pragma once
#include <cstdio>

// The ".Shape" sections: one per run of kept shapes of a layer, elements written backwards,
// then the null shape when some plane will refer to it. Sets LayerRec::hasShapes.
void WriteShapes(FILE* out);

// What WriteShapes leaves in the model, without its text: LayerRec::hasShapes of every layer
// that gets a section.
void MarkShapeLayers();
