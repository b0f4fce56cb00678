#include "printer_models.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// The pages with the euro come first: 858 has the letters of western Europe and the lines of old receipts,
// 1252 also typographic quotes and dashes. 852 adds central Europe, 866 and 1251 Cyrillic. 850 and 437 are
// last: what they have beyond the others are graphics and Greek.
constexpr NumberedPage epsonPages[] = {
    {CodePage::cp858, 19}, {CodePage::cp1252, 16}, {CodePage::iso8859_15, 40}, {CodePage::cp852, 18},
    {CodePage::cp866, 17}, {CodePage::cp1251, 46}, {CodePage::cp850, 2},       {CodePage::cp437, 0},
};
constexpr NumberedPage commonPages[] = {
    {CodePage::cp858, 19}, {CodePage::cp1252, 16}, {CodePage::cp852, 18},
    {CodePage::cp866, 17}, {CodePage::cp850, 2},   {CodePage::cp437, 0},
};
constexpr NumberedPage impactPages[] = {{CodePage::cp437, 0}};
constexpr NumberedPage srp350Pages[] = {
    {CodePage::cp858, 19},  {CodePage::cp1252, 16}, {CodePage::cp852, 18}, {CodePage::cp866, 17},
    {CodePage::cp1251, 28}, {CodePage::cp850, 2},   {CodePage::cp437, 0},
};
constexpr NumberedPage srpS300Pages[] = {
    {CodePage::cp858, 19}, {CodePage::cp1252, 16}, {CodePage::iso8859_15, 40}, {CodePage::cp852, 18},
    {CodePage::cp866, 17}, {CodePage::cp850, 2},   {CodePage::cp437, 0},
};
// Deliberate: without 858, on whose number the sources disagree.
constexpr NumberedPage ctS310Pages[] = {
    {CodePage::cp1252, 16}, {CodePage::cp852, 6}, {CodePage::cp866, 7}, {CodePage::cp437, 0}};
constexpr NumberedPage rp326Pages[] = {
    {CodePage::cp858, 19}, {CodePage::cp1252, 16}, {CodePage::iso8859_15, 44}, {CodePage::cp852, 18},
    {CodePage::cp866, 7},  {CodePage::cp1251, 6},  {CodePage::cp850, 2},       {CodePage::cp437, 0},
};
constexpr NumberedPage xprinterPages[] = {
    {CodePage::cp858, 19},  {CodePage::cp1252, 16}, {CodePage::cp852, 18}, {CodePage::cp866, 17},
    {CodePage::cp1251, 23}, {CodePage::cp850, 2},   {CodePage::cp437, 0},
};
constexpr NumberedPage zj5870Pages[] = {
    {CodePage::cp1252, 16}, {CodePage::cp852, 18}, {CodePage::cp866, 17},
    {CodePage::cp850, 2},   {CodePage::cp437, 0},
};
constexpr NumberedPage itpp047Pages[] = {
    {CodePage::cp858, 19}, {CodePage::cp1252, 6}, {CodePage::cp852, 18},
    {CodePage::cp866, 17}, {CodePage::cp850, 2},  {CodePage::cp437, 0},
};
constexpr NumberedPage a779Pages[] = {
    {CodePage::cp858, 6},   {CodePage::cp1252, 8}, {CodePage::cp852, 2}, {CodePage::cp866, 7},
    {CodePage::cp1251, 13}, {CodePage::cp850, 1},  {CodePage::cp437, 0},
};
constexpr NumberedPage th230Pages[] = {
    {CodePage::cp858, 6}, {CodePage::cp1252, 8}, {CodePage::cp852, 2},
    {CodePage::cp866, 7}, {CodePage::cp850, 1},  {CodePage::cp437, 0},
};

constexpr NumberedPage rpF10Pages[] = {
    {CodePage::cp858, 19},  {CodePage::cp1252, 16}, {CodePage::cp852, 18}, {CodePage::cp866, 17},
    {CodePage::cp1251, 46}, {CodePage::cp850, 2},   {CodePage::cp437, 0},
};

constexpr bool raster = true;
constexpr bool noRaster = false;

constexpr PrinterModel allModels[] = {
    {"epson-tm-t20ii"_L1, "Epson TM-T20II"_L1, 48, 576, epsonPages, Cutter::full, raster},
    {"epson-tm-t20iii"_L1, "Epson TM-T20III"_L1, 48, 576, epsonPages, Cutter::full, raster},
    {"epson-tm-t20iv"_L1, "Epson TM-T20IV"_L1, 48, 576, epsonPages, Cutter::full, raster},
    {"epson-tm-m30ii"_L1, "Epson TM-m30II"_L1, 48, 576, epsonPages, Cutter::full, raster},
    {"epson-tm-m30iii"_L1, "Epson TM-m30III"_L1, 48, 576, epsonPages, Cutter::full, raster},
    {"epson-tm-t88iv"_L1, "Epson TM-T88IV"_L1, 42, 512, commonPages, Cutter::full, raster},
    {"epson-tm-t88v"_L1, "Epson TM-T88V"_L1, 42, 512, epsonPages, Cutter::full, raster},
    {"epson-tm-t88vi"_L1, "Epson TM-T88VI"_L1, 42, 512, epsonPages, Cutter::full, raster},
    {"epson-tm-t88vii"_L1, "Epson TM-T88VII"_L1, 42, 512, epsonPages, Cutter::full, raster},
    {"epson-tm-t70ii"_L1, "Epson TM-T70II"_L1, 42, 512, epsonPages, Cutter::partial, raster},
    {"epson-tm-p20ii"_L1, "Epson TM-P20II, 58 mm"_L1, 32, 384, epsonPages, Cutter::none, raster},
    {"epson-tm-u220b"_L1, "Epson TM-U220B, impact"_L1, 42, 400, impactPages, Cutter::partial, noRaster},
    {"star-escpos"_L1, "Star in ESC/POS mode"_L1, 48, 576, commonPages, Cutter::full, raster},
    {"bixolon-srp-350iii"_L1, "Bixolon SRP-350III"_L1, 42, 512, srp350Pages, Cutter::full, raster},
    {"bixolon-srp-s300"_L1, "Bixolon SRP-S300"_L1, 48, 640, srpS300Pages, Cutter::full, raster},
    {"citizen-ct-s310ii"_L1, "Citizen CT-S310II"_L1, 48, 576, ctS310Pages, Cutter::full, raster},
    {"citizen-ct-s651"_L1, "Citizen CT-S651"_L1, 48, 640, commonPages, Cutter::full, raster},
    {"rongta-rp326"_L1, "Rongta RP326"_L1, 42, 0, rp326Pages, Cutter::full, raster},
    {"xprinter-xp-n160ii"_L1, "Xprinter XP-N160II"_L1, 48, 576, xprinterPages, Cutter::full, raster},
    {"xprinter-xp-t80q"_L1, "Xprinter XP-T80Q"_L1, 48, 576, xprinterPages, Cutter::full, raster},
    // Deliberate: these two without 1251, whose number differs from one to the next.
    {"pos-5890"_L1, "POS-5890, 58 mm"_L1, 32, 384, commonPages, Cutter::none, raster},
    {"nt-5890k"_L1, "NT-5890K, 58 mm"_L1, 32, 384, commonPages, Cutter::none, raster},
    {"zj-5870"_L1, "ZJ-5870, 58 mm"_L1, 32, 384, zj5870Pages, Cutter::none, raster},
    {"munbyn-itpp047"_L1, "Munbyn ITPP047"_L1, 42, 512, itpp047Pages, Cutter::full, raster},
    {"hp-a779"_L1, "HP A779"_L1, 44, 0, a779Pages, Cutter::full, raster},
    {"wincor-th230"_L1, "Wincor TH230"_L1, 44, 576, th230Pages, Cutter::full, noRaster},
    {"seiko-rp-f10"_L1, "Seiko RP-F10"_L1, 48, 576, rpF10Pages, Cutter::full, raster},
    {"seiko-rp-f10-58"_L1, "Seiko RP-F10, 58 mm"_L1, 36, 432, rpF10Pages, Cutter::full, raster},
    {"sunmi-58"_L1, "Sunmi, 58 mm"_L1, 32, 384, commonPages, Cutter::none, raster},
    {"generic-80"_L1, "any other, 80 mm"_L1, 48, 576, commonPages, Cutter::full, raster},
    {"generic-58"_L1, "any other, 58 mm"_L1, 32, 384, commonPages, Cutter::none, raster},
    {"plain-text"_L1, "plain text in UTF-8, without commands"_L1, 34, 0, {}, Cutter::none, noRaster},
};

constexpr QLatin1StringView cutterNames[] = {"none"_L1, "partial"_L1, "full"_L1}; // in the cutters' order

} // namespace

constexpr std::span<const PrinterModel> printerModels = allModels;

QStringList printerModelNames()
{
    QStringList names;
    for (const PrinterModel &model : printerModels)
        names.append(model.name);
    return names;
}

const PrinterModel *findPrinterModel(QStringView name)
{
    const auto model =
        std::ranges::find_if(printerModels, [name](const PrinterModel &known) { return known.name == name; });
    return model == printerModels.end() ? nullptr : &*model;
}

const PrinterModel &plainTextModel()
{
    return *std::ranges::find_if(printerModels, &PrinterModel::isPlainText);
}

QLatin1StringView cutterName(Cutter cutter)
{
    return cutterNames[static_cast<std::size_t>(cutter)];
}

std::optional<Cutter> cutterOfName(QStringView name)
{
    for (const Cutter cutter : {Cutter::none, Cutter::partial, Cutter::full})
        if (name == cutterName(cutter))
            return cutter;
    return {};
}

QString codePagesText(std::span<const NumberedPage> pages)
{
    QStringList texts;
    for (const auto &[page, number] : pages)
        texts.append(codePageName(page) + u'=' + QString::number(number));
    return texts.join(", "_L1);
}
