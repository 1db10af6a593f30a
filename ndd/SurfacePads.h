#pragma once
// A via whose padstack has a single pad on "%toppad" or "%bottompad" is a surface pad: its
// padstack gets a copy of that pad on every conductor layer, so the solver sees the pad on
// each layer the barrel reaches.
void SpreadSurfacePads();
