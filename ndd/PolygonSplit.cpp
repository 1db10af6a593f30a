#include <unordered_map>

#include "geometry/ShapeTable.h"
#include "ndd/NddTokens.h"
#include "ndd/ShapeFields.h"
#include "ndd/ShapeRoutines.h"

namespace {

struct Repeat {
    size_t first;
    size_t second;
};

// Point i of the word list.
std::string Word(const std::vector<std::string>& words, size_t i, size_t half) {
    return words[2 * i + half];
}

// Drops a point whose words equal those of the point after it (without case).
std::vector<std::string> WithoutRepeatedNeighbours(const std::vector<std::string>& words) {
    const size_t n = words.size() / 2;
    std::vector<std::string> out;
    out.reserve(words.size());
    for (size_t i = 0; i < n; ++i) {
        bool same = i + 1 < n && EqualsNoCase(Word(words, i, 0), Word(words, i + 1, 0)) &&
                    EqualsNoCase(Word(words, i, 1), Word(words, i + 1, 1));
        if (same) continue;
        out.push_back(Word(words, i, 0));
        out.push_back(Word(words, i, 1));
    }
    return out;
}

// The points that occur twice, in the order of their second visit. Later visits are not used.
std::vector<Repeat> RepeatedPoints(const std::vector<std::string>& words) {
    std::unordered_map<std::string, std::pair<size_t, int>> seen;
    std::vector<Repeat> repeats;
    for (size_t i = 0; i < words.size() / 2; ++i) {
        std::string key = Word(words, i, 0) + "#" + Word(words, i, 1);
        auto it = seen.find(key);
        if (it == seen.end()) {
            seen.emplace(key, std::make_pair(i, 1));
        } else if (it->second.second == 1) {
            it->second.second = 2;
            repeats.push_back({it->second.first, i});
        }
    }
    return repeats;
}

}  // namespace

void SplitPolygonOnRepeats(std::vector<std::string>& words, int32_t net, int32_t layer) {
    words = WithoutRepeatedNeighbours(words);
    std::vector<Repeat> repeats = RepeatedPoints(words);
    if (repeats.size() < 2) return;
    const size_t n = words.size() / 2;
    // The list as a chain of points, so that each cut costs only the points it takes.
    std::vector<size_t> next(n);
    std::vector<char> alive(n, 1);
    for (size_t i = 0; i < n; ++i) next[i] = i + 1;
    for (const Repeat& r : repeats) {
        if (!alive[r.first] || !alive[r.second]) continue;
        std::vector<std::string> run{Word(words, r.first, 0), Word(words, r.first, 1)};
        size_t k = next[r.first];
        while (k != r.second && k < n) {
            run.push_back(Word(words, k, 0));
            run.push_back(Word(words, k, 1));
            alive[k] = 0;
            k = next[k];
        }
        if (k >= n) continue;
        alive[r.second] = 0;
        next[r.first] = next[r.second];
        if (run.size() / 2 < 3) continue;
        std::vector<ShapePoint> points = PointsOfWords(run);
        points.push_back(points.front());
        ShapeRec rec;
        rec.geometry = kGeometryPolygon;
        rec.polarity = kPolaritySplit;
        rec.layer = layer;
        rec.net = net;
        AppendShape(rec, points);
    }
    std::vector<std::string> rest;
    for (size_t i = 0; i < n; ++i)
        if (alive[i]) {
            rest.push_back(Word(words, i, 0));
            rest.push_back(Word(words, i, 1));
        }
    words.swap(rest);
}
