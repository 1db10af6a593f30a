#pragma once
// The "%trace" and "%arc_trace " passes. Every kept record becomes one trace (two for an arc)
// whose ends are shared nodes, so traces that meet are connected by construction.
#include <cstdint>
#include <string>
#include <string_view>

// Reads the "%trace" lines of the input: the pass ends at a "%tracerule" line once a trace
// line has been seen. mode is 0 for the driver's call and changes nothing. Returns 1, or 0
// when the input cannot be opened, memory runs out or a node cannot be made.
int ParseTrace(const std::string& inputFile, int mode);
// Reads the "%arc_trace " lines of the whole input; each arc becomes two straight halves that
// meet at its middle point. Returns as ParseTrace.
int ParseArcTrace(const std::string& inputFile, int mode);

// Makes room for one more trace in the trace table and its two parallel arrays. Returns 0
// after "Insufficient Memory" was shown, otherwise 1.
int GrowTraceArrays();

// Appends a trace from (x1, y1) to (x2, y2), in mm, with its two nodes. Returns 0 when a node
// cannot be made; the arrays then stand as they were.
int AddTraceRecord(double x1, double y1, double x2, double y2, double width, int32_t layer,
                   int32_t net);

// The first count tokens of line, in order, as repeated NddGetToken calls give them; a
// missing token is "".
void CutTraceFields(std::string_view line, std::string* fields, int count);

// The layer of a trace line: the token with its first and last character removed, whatever
// they are, since the format quotes it.
std::string TraceLayerName(const std::string& token);

// The net of a trace line from its net token as CutTraceFields gives it (a trailing ';' is
// cut there), without its quotes. Returns false when the line is dropped: no net while
// etches without net are left out, or a net outside the selection. net receives the net
// index, kNoNet for an unknown name.
bool TakeTraceNet(std::string token, int32_t& net);
