// The picture of a deck with one box, one void in it and one trace: pixels at chosen points
// have the colours of the deck, worked out from the frame (16 pixels of margin, the board's
// y upwards). picture.qfx spans x 0..10 mm and y 0..12 mm; at a width of 232 pixels that is
// 20 pixels to the millimetre, so a point (x, y) lies at pixel (16 + 20x, 16 + 20(12 - y)).
#include <gtest/gtest.h>

#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QTemporaryDir>
#include <string>

#include "deck/DeckChecker.h"
#include "deck/DeckScan.h"
#include "draw/Pictures.h"

namespace {

const std::string kDeck = std::string(QFXVIEW_TEST_DATA) + "/picture.qfx";

qfxview::DeckScan Scan() {
    qfxview::DeckScan scan;
    qfxview::DeckLines lines(kDeck);
    qfxview::StatementReader reader(lines);
    qfxview::Statement s;
    while (reader.Next(s)) scan.Take(s);
    return scan;
}

QRgb At(const QImage& image, int x, int y) {
    return image.pixel(x, y) & 0xffffff;
}

TEST(Picture, BoxVoidAndTraceInTheDecksColoursAndStackBands) {
    QTemporaryDir dir;
    qfxview::PictureOptions options;
    options.width = 232;
    options.svg = true;
    std::string error;
    auto files = qfxview::WritePictures(kDeck, Scan(), options, dir.path().toStdString(), error);
    ASSERT_EQ(files.size(), 3u) << error;
    QImage layer(dir.filePath("layer-TOP.png"));
    ASSERT_EQ(layer.width(), 232);
    ASSERT_EQ(layer.height(), 272);
    EXPECT_EQ(At(layer, 56, 216), 0x008000u);   // (2, 2): in the box, the section's green
    EXPECT_EQ(At(layer, 116, 156), 0xffffffu);  // (5, 5): in the void, cut out
    EXPECT_EQ(At(layer, 116, 16), 0x0000ffu);   // (5, 12): on the trace, the package's blue
    EXPECT_EQ(At(layer, 116, 36), 0xffffffu);   // (5, 11): between box and trace
    EXPECT_TRUE(QFileInfo(dir.filePath("layer-TOP.svg")).size() > 0);
    // Stack bands from y 12: the top layer 22 + 40 * 0.035 / 0.2 = 29 pixels high, then the
    // dielectric; text stands at their left.
    QImage stack(dir.filePath("stack.png"));
    ASSERT_FALSE(stack.isNull());
    EXPECT_EQ(At(stack, 212, 16), 0x0000ffu);
    EXPECT_EQ(At(stack, 212, 60), 0xe6d8adu);
}

}  // namespace
