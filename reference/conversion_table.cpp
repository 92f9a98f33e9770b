// The wall chart behind the Conversions window: 124 directed pairs. The
// factors stand as the chart gives them. They are not reciprocals of each
// other, and a pair may differ between two types: pounds to kilograms is
// .4535923 as a force and .4535924 as a mass. Keep every digit as written.

#include "reference/conversion_table.h"

namespace tavrin {

namespace {

using enum UnitType;

// The five-ninths is divided out before it multiplies.
Real FahrenheitToCelsius(Real x) {
    return (x - 32) * (Real(5) / 9);
}
Real CelsiusToFahrenheit(Real x) {
    return x * 9 / 5 + 32;
}
Real CelsiusToKelvin(Real x) {
    return x + 273.15;
}
Real KelvinToCelsius(Real x) {
    return x - 273.15;
}
Real FahrenheitToRankine(Real x) {
    return x + 459.67;
}
Real RankineToFahrenheit(Real x) {
    return x - 459.67;
}
Real FahrenheitToKelvin(Real x) {
    return (x - 32) / 1.8 + 273.15;
}
Real KelvinToFahrenheit(Real x) {
    return (x - 273.15) * 1.8 + 32;
}
Real CelsiusToRankine(Real x) {
    return x * 1.8 + 491.67;
}
Real RankineToCelsius(Real x) {
    return (x - 491.67) / 1.8;
}
Real ReaumurToCelsius(Real x) {
    return x * 1.25;
}
Real CelsiusToReaumur(Real x) {
    return x / 1.25;
}
Real FahrenheitToReaumur(Real x) {
    return (x - 32) / 2.25;
}
Real ReaumurToFahrenheit(Real x) {
    return x * 2.25 + 32;
}
Real RankineToReaumur(Real x) {
    return (x - 491.67) / 2.25;
}
Real ReaumurToRankine(Real x) {
    return x * 2.25 + 491.67;
}
Real KelvinToReaumur(Real x) {
    return (x - 273.15) / 1.25;
}
Real ReaumurToKelvin(Real x) {
    return x * 1.25 + 273.15;
}

// Through feet: a third of the centimetres-to-feet figure.
Real CentimetersToYards(Real x) {
    return (x / 3) * 0.03281;
}

}  // namespace

const std::vector<Conversion>& ConversionTable() {
    static const std::vector<Conversion> table{
        {Length, "in", "cm", 2.54},
        {Length, "cm", "in", 0.3937},
        {Length, "microinch", "micron", 0.0254},
        {Length, "micron", "microinch", 39.370079},
        {Length, "in", "mm", 25.4},
        {Length, "mm", "in", 0.03937},
        {Length, "feet", "meters", 0.3048006},
        {Length, "meters", "feet", 3.2808333},
        {Length, "yards", "centimeters", 91.44},
        {Length, "centimeters", "yards", 0, CentimetersToYards},
        {Length, "kilometers", "miles", 0.6214},
        {Length, "miles", "kilometers", 1.609},

        {Force, "pounds", "kilograms", 0.4535923},
        {Force, "kilograms", "pounds", 2.2046226},
        {Force, "ton[short]", "ton[metric]", 0.9071847},
        {Force, "ton[metric]", "ton[short]", 1.1023113},
        {Force, "foot lbs", "newton m", 1.3558179},
        {Force, "newton m", "foot lbs", 0.7375622},

        // Short factors, not Pi.
        {Angle, "degrees", "radians", 0.0174533},
        {Angle, "radians", "degrees", 57.29578},
        {Angle, "quadrants", "degrees", 90},
        {Angle, "degrees", "quadrants", 0.01111},
        {Angle, "radians", "quadrants", 0.6366},
        {Angle, "quadrants", "radians", 1.571},
        {Angle, "grades", "degrees", 0.9},
        {Angle, "degrees", "grades", 1.1111111},
        {Angle, "revolutions", "degrees", 360},
        {Angle, "degrees", "revolutions", 0.00277777},
        {Angle, "radians", "grades", 63.661977},
        {Angle, "grades", "radians", 0.015708},

        {UnitType::Power, "horsepower", "kilowatt", 0.7457},
        {UnitType::Power, "kilowatt", "horsepower", 1.3410221},

        {Speed, "in/min", "mm/min", 25.4},
        {Speed, "mm/min", "in/min", 0.03937},
        {Speed, "ft/min", "m/min", 0.3048},
        {Speed, "m/min", "ft/min", 3.2808399},
        {Speed, "ft/sec", "cm/sec", 30.48},
        {Speed, "cm/sec", "ft/sec", 0.03281},
        {Speed, "ft/sec", "km/hour", 1.097},
        {Speed, "km/hour", "ft/sec", 0.9113},
        {Speed, "ft/sec", "m/min", 18.29},
        {Speed, "m/min", "ft/sec", 0.05468},
        {Speed, "mph", "km/hour", 1.609},
        {Speed, "km/hour", "mph", 0.6214},

        {Volume, "oz", "ml", 29.58333},
        {Volume, "ml", "oz", 0.033814},
        {Volume, "quart", "liter", 0.946353},
        {Volume, "liter", "quart", 1.0566882},
        {Volume, "in³", "liters", 0.0163871},
        {Volume, "liters", "in³", 61.023744},
        {Volume, "gallons", "liters", 3.785306},
        {Volume, "liters", "gallons", 0.2641721},
        {Volume, "ft³ liquid", "gallons", 7.48052},
        {Volume, "gallons", "ft³ liquid", 0.1336806},
        {Volume, "m³ liquid", "gallons", 264.17205},
        {Volume, "gallons", "m³ liquid", 0.0037854},
        {Volume, "cm³", "in³", 0.0610237},
        {Volume, "in³", "cm³", 16.387064},
        {Volume, "hogshead", "hl", 2.3848094},
        {Volume, "hl", "hogshead", 0.4193207},

        {Temperature, "fahrenheit", "celsius", 0, FahrenheitToCelsius},
        {Temperature, "celsius", "fahrenheit", 0, CelsiusToFahrenheit},
        {Temperature, "celsius", "kelvin", 0, CelsiusToKelvin},
        {Temperature, "kelvin", "celsius", 0, KelvinToCelsius},
        {Temperature, "fahrenheit", "rankine", 0, FahrenheitToRankine},
        {Temperature, "rankine", "fahrenheit", 0, RankineToFahrenheit},
        {Temperature, "fahrenheit", "kelvin", 0, FahrenheitToKelvin},
        {Temperature, "kelvin", "fahrenheit", 0, KelvinToFahrenheit},
        {Temperature, "celsius", "rankine", 0, CelsiusToRankine},
        {Temperature, "rankine", "celsius", 0, RankineToCelsius},
        {Temperature, "reaumur", "celsius", 0, ReaumurToCelsius},
        {Temperature, "celsius", "reaumur", 0, CelsiusToReaumur},
        {Temperature, "fahrenheit", "reaumur", 0, FahrenheitToReaumur},
        {Temperature, "reaumur", "fahrenheit", 0, ReaumurToFahrenheit},
        {Temperature, "rankine", "reaumur", 0, RankineToReaumur},
        {Temperature, "reaumur", "rankine", 0, ReaumurToRankine},
        {Temperature, "kelvin", "reaumur", 0, KelvinToReaumur},
        {Temperature, "reaumur", "kelvin", 0, ReaumurToKelvin},

        {Pressure, "lbs/in²", "bar", 0.06895},
        {Pressure, "bar", "lbs/in²", 14.503744},
        {Pressure, "N/mm²", "lbs/in²", 145.03744},
        {Pressure, "lbs/in²", "N/mm²", 0.006895},
        {Pressure, "lbs/in²", "kgs/m²", 703.06958},
        {Pressure, "kgs/m²", "lbs/in²", 0.001422},
        {Pressure, "lbs/in²", "kgs/cm²", 0.0703069},
        {Pressure, "kgs/cm²", "lbs/in²", 14.223343},
        {Pressure, "lbs/in²", "kPa", 6.8947573},
        {Pressure, "kPa", "lbs/in²", 0.14503774},
        {Pressure, "kPa", "bar", 0.01},
        {Pressure, "bar", "kPa", 100},
        {Pressure, "dabar or MPa", "lbs/in²", 145.03774},
        {Pressure, "lbs/in²", "dabar or MPa", 0.00689476},
        {Pressure, "bar", "MPa", 0.1},
        {Pressure, "MPa", "bar", 10},

        // "feet²" in the fifth row stands as the chart writes it, and acres to
        // square miles is the chart's own figure, not 1/640.
        {Area, "in²", "mm²", 645.2},
        {Area, "mm²", "in²", 0.00155},
        {Area, "in²", "cm²", 6.452},
        {Area, "cm²", "in²", 0.155},
        {Area, "feet²", "cm²", 929},
        {Area, "cm²", "ft²", 0.001076},
        {Area, "ft²", "m²", 0.0929},
        {Area, "m²", "ft²", 10.76},
        {Area, "yd²", "m²", 0.8361},
        {Area, "m²", "yd²", 1.196},
        {Area, "mi²", "km²", 2.59},
        {Area, "km²", "mi²", 0.3861},
        {Area, "acres", "hectares", 0.4046856},
        {Area, "hectares", "acres", 2.4710538},
        {Area, "acres", "mi²", 0.0012913},
        {Area, "mi²", "acres", 640},
        {Area, "ft²", "acres", 0.000023},
        {Area, "acres", "ft²", 43560},

        {Mass, "pounds", "kilograms", 0.4535924},
        {Mass, "kilograms", "pounds", 2.2046226},
        {Mass, "pounds", "grams", 453.5924},
        {Mass, "grams", "pounds", 0.002205},
        {Mass, "ounces", "grams", 28.349492},
        {Mass, "grams", "ounces", 0.035274},
        {Mass, "ounces", "kilograms", 0.0283495},
        {Mass, "kilograms", "ounces", 35.273962},
        {Mass, "ounces", "pounds", 0.0625},
        {Mass, "pounds", "ounces", 16},
        {Mass, "grain", "centigram", 6.479891},
        {Mass, "centigram", "grain", 0.1543236},
    };
    return table;
}

}  // namespace tavrin
