#pragma once
// Every printed length is multiplied by this scale, and area limits are divided by it twice.
// Nothing ever changes it; writers that change the model with it (layer thickness) are safe
// to run twice only because it is 1.0.
constexpr double kOutputScale = 1.0;
