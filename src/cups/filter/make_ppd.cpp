/* Writes the PPD file of the queues to standard output: the options that they have, and what such a file
 * needs besides. */
#include "queue_options.h"

#include <iostream>

namespace {

// The print system wants a size of the paper; a roll has a width, and its length is nobody's matter.
constexpr const char *beginning = R"PPD(*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*FileVersion: ")PPD" TAVOLUX_VERSION R"PPD("
*LanguageVersion: English
*LanguageEncoding: ISOLatin1
*PCFileName: "TAVOLUX.PPD"
*Manufacturer: "Tavolux"
*Product: "(Tavolux receipt printer)"
*ModelName: "Tavolux receipt printer"
*ShortNickName: "Tavolux receipt printer"
*NickName: "Tavolux receipt printer, )PPD" TAVOLUX_VERSION R"PPD("
*PSVersion: "(3010.000) 0"
*LanguageLevel: "3"
*ColorDevice: False
*DefaultColorSpace: Gray
*FileSystem: False
*Throughput: "1"
*LandscapeOrientation: Plus90
*TTRasterizer: Type42
*cupsVersion: 2.4
*cupsManualCopies: True
*cupsLanguages: "en"
*cupsFilter2: "application/vnd.tavolux.document+xml application/vnd.tavolux.printout 0 tavolux-filter"
*cupsFilter2: "application/vnd.tavolux.printout application/vnd.tavolux.printout 0 -"

*OpenUI *PageSize/Paper: PickOne
*OrderDependency: 10 AnySetup *PageSize
*DefaultPageSize: 80x297mm.Fullbleed
*PageSize 80x297mm.Fullbleed/Roll: ""
*CloseUI: *PageSize
*OpenUI *PageRegion/Paper: PickOne
*OrderDependency: 10 AnySetup *PageRegion
*DefaultPageRegion: 80x297mm.Fullbleed
*PageRegion 80x297mm.Fullbleed/Roll: ""
*CloseUI: *PageRegion
*DefaultImageableArea: 80x297mm.Fullbleed
*ImageableArea 80x297mm.Fullbleed/Roll: "0 0 226.77 841.89"
*DefaultPaperDimension: 80x297mm.Fullbleed
*PaperDimension 80x297mm.Fullbleed/Roll: "226.77 841.89"
)PPD";

void writeOption(const QueueOption &option)
{
    const std::string keyword = '*' + std::string(option.name.data());
    const auto writeChoice = [&keyword](const std::string &value, const std::string &title) {
        std::cout << keyword << ' ' << value << '/' << title << ": \"\"\n";
    };
    std::cout << "\n*OpenUI " << keyword << '/' << option.title.data() << ": PickOne\n"
              << "*OrderDependency: 20 AnySetup " << keyword << '\n'
              << "*Default" << option.name.data() << ": " << asConfigured.data() << '\n';
    writeChoice(asConfigured.data(), "As configured");
    for (const OptionChoice &choice : option.choices())
        writeChoice(choice.value.toStdString(), choice.title.toStdString());
    std::cout << "*CloseUI: " << keyword << '\n';
}

} // namespace

int main()
{
    std::cout << beginning;
    for (const QueueOption &option : queueOptions)
        writeOption(option);
    std::cout.flush();
    return std::cout.good() ? 0 : 1;
}
