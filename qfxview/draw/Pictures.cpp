#include "draw/Pictures.h"

#include <memory>

#include "deck/DeckLines.h"
#include "draw/DeckPainter.h"
#include "draw/LayerCanvas.h"
#include "draw/StackPicture.h"

namespace qfxview {

std::string LayerFileName(const DeckLayer& layer, const char* extension) {
    std::string name = "layer-" + layer.name.substr(layer.name.find('$') + 1);
    for (char& c : name)
        if (!(std::isalnum(static_cast<unsigned char>(c)) || c == '-' || c == '_' || c == '.'))
            c = '_';
    return name + "." + extension;
}

std::vector<std::string> WritePictures(const std::string& deckPath, const DeckScan& scan,
                                       const PictureOptions& options, const std::string& dir,
                                       std::string& error) {
    std::vector<std::string> written;
    const Frame frame = FrameOf(scan.extent, options.width);
    std::vector<std::unique_ptr<LayerCanvas>> owned;
    std::vector<LayerCanvas*> canvases(scan.layers.size(), nullptr);
    for (size_t i = 0; i < scan.layers.size(); ++i) {
        if (!scan.layers[i].IsConductor()) continue;
        std::string svg = options.svg ? dir + "/" + LayerFileName(scan.layers[i], "svg") : "";
        owned.push_back(std::make_unique<LayerCanvas>(frame, svg));
        canvases[i] = owned.back().get();
    }
    DeckLines lines(deckPath);
    if (!lines.IsOpen()) {
        error = "cannot read " + deckPath;
        return {};
    }
    StatementReader reader(lines);
    DeckPainter painter(scan, canvases, options.nodeMarks);
    Statement statement;
    while (reader.Next(statement)) painter.Take(statement);
    for (size_t i = 0; i < scan.layers.size(); ++i) {
        if (!canvases[i]) continue;
        std::string png = dir + "/" + LayerFileName(scan.layers[i], "png");
        if (!canvases[i]->Save(png)) {
            error = "cannot write " + png;
            return {};
        }
        written.push_back(png);
        if (options.svg) written.push_back(dir + "/" + LayerFileName(scan.layers[i], "svg"));
    }
    std::string stack = dir + "/stack.png";
    if (!WriteStackPicture(scan.layers, std::min(options.width, 900), stack)) {
        error = "cannot write " + stack;
        return {};
    }
    written.push_back(stack);
    return written;
}

}  // namespace qfxview
