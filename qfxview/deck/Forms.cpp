#include "deck/Forms.h"

#include "deck/Fields.h"

#include <cctype>
#include <cstring>

namespace qfxview {

namespace {

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

// Digits at s; returns how many.
int Digits(const char*& s) {
    int n = 0;
    while (IsDigit(*s)) ++s, ++n;
    return n;
}

// What printf prints for a number that is not finite.
bool NonFinite(const char*& s) {
    const char* p = *s == '-' ? s + 1 : s;
    if (std::strncmp(p, "inf", 3) != 0 && std::strncmp(p, "nan", 3) != 0) return false;
    s = p + 3;
    return true;
}

// A number as %e (decimals 6) or %.10e (decimals 10) prints it: one digit, the point, the
// decimals, "e", a sign and at least two exponent digits.
bool Exponential(const char*& s, int decimals) {
    if (NonFinite(s)) return true;
    if (*s == '-') ++s;
    if (Digits(s) != 1 || *s++ != '.') return false;
    if (Digits(s) != decimals || *s++ != 'e') return false;
    if (*s != '+' && *s != '-') return false;
    ++s;
    return Digits(s) >= 2;
}

bool Fixed(const char*& s) {
    if (NonFinite(s)) return true;
    if (*s == '-') ++s;
    if (Digits(s) < 1 || *s++ != '.') return false;
    return Digits(s) == 6;
}

bool Integer(const char*& s) {
    if (*s == '-') ++s;
    return Digits(s) >= 1;
}

bool Name(const char*& s) {
    const char* start = s;
    while (*s && *s != ' ') ++s;
    return s > start;
}

bool SignedName(const char*& s) {
    const char* start = s;
    if (!Name(s) || s - start < 2) return false;
    return s[-1] == '+' || s[-1] == '-';
}

bool Field(char cls, const char*& s) {
    switch (cls) {
        case 'N':
            return Name(s);
        case 'S':
            return SignedName(s);
        case 'E':
            return Exponential(s, 6);
        case 'T':
            return Exponential(s, 10);
        case 'F':
            return Fixed(s);
        case 'D':
            return Integer(s);
    }
    return false;
}

bool AnyForm(std::initializer_list<const char*> forms, const std::string& line) {
    for (const char* form : forms)
        if (MatchesForm(form, line)) return true;
    return false;
}

bool NoContinuation(const Statement& s) {
    return s.moreCount == 0;
}

// Polygon element: two points to a line, a last line with one point allowed; three points
// at least.
bool PolygonForm(const Statement& s) {
    int points = 0;
    bool single = false;
    if (MatchesForm("{S}    {E}mm {E}mm {E}mm {E}mm", s.head) ||
        MatchesForm("{S} Color = {N}   {E}mm {E}mm {E}mm {E}mm", s.head))
        points = 2;
    else if (MatchesForm("{S}    {E}mm {E}mm", s.head) ||
             MatchesForm("{S} Color = {N}   {E}mm {E}mm", s.head))
        points = 1, single = true;
    else
        return false;
    for (size_t i = 0; i < s.moreCount; ++i) {
        if (single) return false;  // a single point ends the list
        if (MatchesForm("+   {E}mm {E}mm {E}mm {E}mm", s.more[i]))
            points += 2;
        else if (MatchesForm("+   {E}mm {E}mm", s.more[i]))
            points += 1, single = true;
        else
            return false;
    }
    return points >= 3;
}

const char* const kPadSizes[] = {"Box {E}mm {E}mm", "Square {E}mm", "Circle {E}mm",
                                 "RoundedRect_X {E}mm {E}mm", "RoundedRect_Y {E}mm {E}mm"};

bool PadSize(const char* role, const std::string& line) {
    for (const char* size : kPadSizes)
        if (MatchesForm((std::string(role) + " " + size).c_str(), line)) return true;
    return false;
}

// A polygon pad: points on continuation lines, then a line with "+ " alone or the offsets.
bool PolygonPadForm(const Statement& s) {
    static const std::string kIndent18 = "+ " + std::string(18, ' ');
    static const std::string kIndent19 = "+ " + std::string(19, ' ');
    if (s.moreCount < 4) return false;  // three points at least, and the closing line
    for (size_t i = 0; i + 1 < s.moreCount; ++i)
        if (!MatchesForm((kIndent18 + "{E}mm {E}mm").c_str(), s.more[i]) &&
            !MatchesForm((kIndent19 + "{E}mm {E}mm").c_str(), s.more[i]))
            return false;
    const std::string& last = s.more[s.moreCount - 1];
    return last == "+ " ||
           MatchesForm((kIndent19 + "offSetX = {E}mm offSetY = {E}mm").c_str(), last);
}

bool RegularForm(const Statement& s) {
    if (s.head == "Regular Polygon") return PolygonPadForm(s);
    if (!PadSize("Regular", s.head)) return false;
    return s.moreCount == 0 ||
           (s.moreCount == 1 && MatchesForm("+ offSetX = {E}mm offSetY = {E}mm", s.more[0]));
}

}  // namespace

bool MatchesForm(const char* form, const std::string& line) {
    const char* s = line.c_str();
    const char* p = form;
    while (*p) {
        if (p[0] == '{' && p[1] && p[2] == '}') {
            if (!Field(p[1], s)) return false;
            p += 3;
        } else if (*p++ != *s++) {
            return false;
        }
    }
    return *s == '\0' && static_cast<size_t>(s - line.c_str()) == line.size();
}

bool HasWriterForm(const Statement& s) {
    const std::string& h = s.head;
    switch (s.kind) {
        case Kind::Title:
            return NoContinuation(s) &&
                   MatchesForm(
                       "Title - BOLT9000 file for version 2000.02 translated by Ndd2Qfx "
                       "{N} from Mentor's NDD file .",
                       h);
        case Kind::Transient:
            return NoContinuation(s) &&
                   h == ".Transient Timesteps = 100 Viewstep = 10 DC = No Window = Yes";
        case Kind::Mesh:
            return NoContinuation(s) && h == ".Mesh Pkg = $Package Mesh_X = 30 Mesh_Y = 30";
        case Kind::PackageHead:
            return NoContinuation(s) &&
                   h == ".Package $Package Trace_Color = blue Via_Color = red Hole_Color = yellow";
        case Kind::ShapeOpen:
            return NoContinuation(s) && MatchesForm(".Shape {N} Color = green", h);
        case Kind::Circle:
            return NoContinuation(s) &&
                   AnyForm({"{S}  {E}mm {E}mm {E}mm", "{S} Color = {N} {E}mm {E}mm {E}mm"}, h);
        case Kind::Box:
            return NoContinuation(s) && AnyForm({"{S}  {E}mm {E}mm {E}mm {E}mm",
                                                 "{S} Color = {N} {E}mm {E}mm {E}mm {E}mm"},
                                                h);
        case Kind::Polygon:
            return PolygonForm(s);
        case Kind::SignalLayer:
            return NoContinuation(s) &&
                   MatchesForm("Signal${N} Thickness = {E}mm Conductivity = {E} Color = {N}", h);
        case Kind::PlaneLayer:
            return NoContinuation(s) &&
                   MatchesForm(
                       "Plane${N} Thickness = {E}mm Conductivity = {E} Shape = {N} Color = {N}", h);
        case Kind::MediumLayer:
            return NoContinuation(s) &&
                   MatchesForm("Medium${N} Thickness = {E}mm Permittivity = {E}", h);
        case Kind::MediumPseudo:
            return NoContinuation(s) &&
                   MatchesForm("MediumPseudo{N} Thickness = 0.01mm Permittivity = 4.0", h);
        case Kind::PlanePseudo:
            return NoContinuation(s) &&
                   MatchesForm(
                       "PlanePseudo{N} Thickness = 0.01mm Conductivity = 5.8e7 Shape = "
                       "PseudoNullShape Color = yellow",
                       h);
        case Kind::Patch:
            return MatchesForm("Patch${N}", h) && s.moreCount == 1 &&
                   MatchesForm("+ Shape = {N} Layer = {N}", s.more[0]);
        case Kind::Node:
            return NoContinuation(s) &&
                   AnyForm({"Node{N} X = {T}mm Y = {T}mm Layer = {N} Contact = {D}",
                            "Node{N} X = {T}mm Y = {T}mm Layer = {N} Contact = {D} PadStack = {N} "
                            "AbsoluteRotation = {F}"},
                           h);
        case Kind::Trace:
            return NoContinuation(s) &&
                   AnyForm(
                       {"Trace{N} StartingNode = {N} EndingNode = {N} Width = {E}mm",
                        "Trace{N} StartingNode = {N} EndingNode = {N} Width = {E}mm Color = {N}"},
                       h);
        case Kind::Via:
            return NoContinuation(s) &&
                   AnyForm({"Via{N} UpperNode = {N} LowerNode = {N} Color = {N}",
                            "Via{N} UpperNode = {N} LowerNode = {N} Color = {N} PadStack = {N} "
                            "AbsoluteRotation = {F}"},
                           h);
        case Kind::PadStackDef:
            return NoContinuation(s) && AnyForm({".PadStackDef {N}", ".PadStackDef {N} {E}mm",
                                                 ".PadStackDef {N} {E}mm {E}mm"},
                                                h);
        case Kind::PadDef:
            return NoContinuation(s) && MatchesForm(".PadDef {N}", h);
        case Kind::Regular:
            return RegularForm(s);
        case Kind::Anti:
            return NoContinuation(s) && PadSize("Anti", h);
        case Kind::PartialCkt:
            return IsPartialCktHead(s);
        case Kind::Connect:
            return NoContinuation(s) && MatchesForm(".Connect {N} {N}", h);
        case Kind::ShapeEnd:
        case Kind::PadStackEnd:
        case Kind::PadDefEnd:
        case Kind::PackageEnd:
        case Kind::PartialCktEnd:
        case Kind::ConnectEnd:
        case Kind::End:
            return NoContinuation(s) && h.find(' ') == std::string::npos;
        case Kind::Comment:
            return NoContinuation(s);
        case Kind::Orphan:
        case Kind::Other:
            return false;
    }
    return false;
}

bool HoldsNonFinite(const Statement& s, std::string& word) {
    for (size_t i = 0; i <= s.moreCount; ++i) {
        const std::string& line = i == 0 ? s.head : s.more[i - 1];
        if (line.find("inf") == std::string::npos && line.find("nan") == std::string::npos)
            continue;
        for (std::string w : Words(line)) {
            if (w.size() > 2 && w.compare(w.size() - 2, 2, "mm") == 0) w.resize(w.size() - 2);
            const char* p = w.c_str();
            if (NonFinite(p) && *p == '\0') return word = w, true;
        }
    }
    return false;
}

bool IsLinkLine(const std::string& line) {
    return MatchesForm("{N} $Package.Node{N}", line);
}

bool IsPartialCktHead(const Statement& s) {
    // The active form: the name and a blank, nothing else.
    if (s.moreCount == 0 && MatchesForm(".PartialCkt  {N} ", s.head)) return true;
    const char* const kExt = " ExtNode =";
    size_t at = s.head.find(kExt);
    if (at == std::string::npos || !MatchesForm(".PartialCkt  {N}", s.head.substr(0, at)))
        return false;
    // Terminal names, one blank before each, on the head and on continuation lines.
    auto names = [](const std::string& text) {
        for (size_t i = 0; i < text.size(); ++i)
            if (text[i] == ' ' && (i + 1 == text.size() || text[i + 1] == ' ')) return false;
        return text.empty() || text[0] == ' ';
    };
    if (!names(s.head.substr(at + std::strlen(kExt)))) return false;
    for (size_t i = 0; i < s.moreCount; ++i)
        if (s.more[i].size() < 3 || !names(s.more[i].substr(1))) return false;
    return true;
}

}  // namespace qfxview
