#pragma once
// Settling the nodes before they are written.

// One forward pass over the trace table, deleted traces included: a trace's two nodes share
// a net when only one of them has one, so a net travels along a chain of traces only as far
// as the order of the table carries it. Traces on layers that are not signal layers print
// nothing, so their ends stop holding their nodes. Works on the flat node array through the
// node index, which must be current.
void MakeNode();

// Negates the rotation of every node that has a padstack, lies on the bottom conductor layer
// and is mirrored. Runs once for each writing of nodes by the driver.
void FlipMirroredBottomNodes();
