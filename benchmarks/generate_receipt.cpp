#include <cstdlib>
#include <iostream>
#include <random>
#include <string>

namespace {

std::string euros(unsigned long cents)
{
    const std::string fraction = std::to_string(cents % 100);
    return std::to_string(cents / 100) + (fraction.size() < 2 ? ".0" : ".") + fraction;
}

} // namespace

/*
 * Writes a receipt with as many items as its argument says, the same one every time: header blocks, dishes
 * with names that fit the column and names that do not, and the sum of the items as the total.
 */
int main(int argc, char *argv[])
{
    static const char *const dishes[] = {
        "Coperto",
        "Pizza Margherita",
        "Tagliatelle al rag\u00f9",
        "Bistecca alla griglia con rucola",
        "Tiramis\u00f9",
        "Acqua minerale 0,75",
        "Insalata mista",
        "Spaghetti allo scoglio per due",
    };
    const unsigned long items = argc > 1 ? std::strtoul(argv[1], nullptr, 10) : 10;
    std::mt19937 random(20'090'312); // the same numbers on every machine

    std::cout << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<document>\n"
                 "  <method name=\"printFullOrderReceipt\"/>\n"
                 "  <company name=\"Trattoria del Ponte\" address=\"Via Roma 12\" city=\"20100 Milano\"/>\n"
                 "  <receipt serialnumber=\"000187\"/>\n"
                 "  <orderinfo date=\"14/05/2024\" time=\"21:52\" table=\"12\" waiter=\"Giulia\"/>\n";
    unsigned long total = 0;
    for (unsigned long item = 0; item < items; ++item) {
        const unsigned long number = random() % 9 + 1;
        const unsigned long price = (random() % 60 + 4) * 50;
        total += number * price;
        std::cout << "  <receipe number=\"" << number << "\" name=\"" << dishes[random() % std::size(dishes)]
                  << "\" price=\"" << euros(price) << "\" totalPrice=\"" << euros(number * price) << "\"/>\n";
    }
    std::cout << "  <total price=\"" << euros(total) << "\"/>\n</document>\n";
    return 0;
}
