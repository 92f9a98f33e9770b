#include <gtest/gtest.h>

#include "tests/support/harness.h"

namespace tavrin {
namespace {

// Every pair at 12345.678, each figure worked apart from the code from the wall
// chart's factor or formula: a transposed digit of a factor shows in four places.
TEST(Conversions, EveryPairOfEveryType) {
    const char* const expected[] = {
        "cm=  31358.0221|in=  4860.4934|micron=  313.5802|microinch=  486050.3182|mm=  313580.2212|"
        "in=  486.0493|meters=  3762.9701|feet=  40504.1115|centimeters=  1128888.7963|"
        "yards=  135.0206|miles=  7671.6043|kilometers=  19864.1959",
        "kilograms=  5599.9045|pounds=  27217.5607|ton[metric]=  11199.8102|"
        "ton[short]=  13608.7804|newton m=  16738.4912|foot lbs=  9105.7054",
        "radians=  215.4728|degrees=  707355.2506|degrees=  1111111.02|quadrants=  137.1605|"
        "quadrants=  7859.2586|radians=  19395.0601|degrees=  11111.1102|grades=  13717.4199|"
        "degrees=  4444444.08|revolutions=  34.2935|grades=  785950.2689|radians=  193.9259",
        "kilowatt=  9206.1721|horsepower=  16555.827",
        "mm/min=  313580.2212|in/min=  486.0493|m/min=  3762.9627|ft/min=  40504.193|"
        "cm/sec=  376296.2654|ft/sec=  405.0617|km/hour=  13543.2088|ft/sec=  11250.6164|"
        "m/min=  225802.4506|ft/sec=  675.0617|km/hour=  19864.1959|mph=  7671.6043",
        "ml=  365226.2663|oz=  417.4568|liter=  11683.3694|quart=  13045.5323|liters=  202.3099|"
        "in\u00b3=  753379.4938|liters=  46732.169|gallons=  3261.3837|gallons=  92352.0912|"
        "ft\u00b3 liquid=  1650.3776|gallons=  3261383.0659|m\u00b3 liquid=  46.7333|"
        "in\u00b3=  753.379|cm\u00b3=  202309.4155|hl=  29442.0889|hogshead=  5176.7983",
        "celsius=  6840.9322|fahrenheit=  22254.2204|kelvin=  12618.828|celsius=  12072.528|"
        "rankine=  12805.348|fahrenheit=  11886.008|kelvin=  7114.0822|fahrenheit=  21762.5504|"
        "rankine=  22713.8904|celsius=  6585.56|celsius=  15432.0975|reaumur=  9876.5424|"
        "reaumur=  5472.7458|fahrenheit=  27809.7755|reaumur=  5268.448|rankine=  28269.4455|"
        "reaumur=  9658.0224|kelvin=  15705.2475",
        "bar=  851.2345|lbs/in\u00b2=  179058.5532|lbs/in\u00b2=  1790585.5322|"
        "N/mm\u00b2=  85.1234|kgs/m\u00b2=  8679870.6463|lbs/in\u00b2=  17.5556|"
        "kgs/cm\u00b2=  867.9863|lbs/in\u00b2=  175596.8128|kPa=  85120.4535|"
        "lbs/in\u00b2=  1790.5892|bar=  123.4568|kPa=  1234567.8|lbs/in\u00b2=  1790589.2359|"
        "dabar or MPa=  85.1205|MPa=  1234.5678|bar=  123456.78",
        "mm\u00b2=  7965431.4456|in\u00b2=  19.1358|cm\u00b2=  79654.3145|in\u00b2=  1913.5801|"
        "cm\u00b2=  11469134.862|ft\u00b2=  13.2839|m\u00b2=  1146.9135|ft\u00b2=  132839.4953|"
        "m\u00b2=  10322.2214|yd\u00b2=  14765.4309|km\u00b2=  31975.306|mi\u00b2=  4766.6663|"
        "hectares=  4996.1181|acres=  30506.8345|mi\u00b2=  15.942|acres=  7901233.92|acres=  .284|"
        "ft\u00b2=  537777733.68",
        "kilograms=  5599.9057|pounds=  27217.5607|grams=  5599905.7136|pounds=  27.2222|"
        "grams=  349993.6997|ounces=  435.4814|kilograms=  349.9938|ounces=  435480.9766|"
        "pounds=  771.6049|ounces=  197530.848|centigram=  79998.6478|grain=  1905.2295",
    };
    testing::Harness h;
    Form& f = h.run("frmConversions", {"txtToConvert=12345.678"});
    for (int type = 0; type < 10; ++type) {
        h.run("frmConversions", {QString("popUnitType#%1").arg(type)});
        QStringList answers;
        for (int pair = 0; pair < f.listCount("lstUnitToConv"); ++pair) {
            h.run("frmConversions", {QString("lstUnitToConv#%1").arg(pair), "Command1"});
            answers << f.text("txtConvAns");
        }
        EXPECT_EQ(answers.join('|'), QString::fromUtf8(expected[type])) << type;
    }
}

// From 1 converted by the first pair of lengths, then the row's steps: the box
// shown, the answer, the pair chosen. A type empties the answer, keeps the value.
TEST(Conversions, HandlerRows) {
    const std::pair<QStringList, const char*> rows[] = {
        {{"popUnitType#6", "txtToConvert=", "Command1"}, "|celsius= -17.7778|fahrenheit->celsius"},
        {{"popUnitType=Length", "Command1"}, "Error, Please select unit type.|cm=  2.54|in->cm"},
        {{"popUnitType=Length", "txtToConvert=x", "Command1"},
         "Error, Invalid input|cm=  2.54|in->cm"},
        {{"lstUnitToConv#5"}, "|cm=  2.54|mm->in"},
        {{"popUnitType#3"}, "||horsepower->kilowatt"},
        {{"popUnitType#3", "Command1"}, "|kilowatt=  .7457|horsepower->kilowatt"},
    };
    for (const auto& [steps, answer] : rows) {
        testing::Harness h;
        Form& f = h.run("frmConversions", QStringList{"txtToConvert=1", "Command1"} + steps);
        EXPECT_EQ(h.lastBox() + '|' + f.text("txtConvAns") + '|' + f.listText("lstUnitToConv"),
                  answer)
            << steps.join(' ');
    }
}

}  // namespace
}  // namespace tavrin
