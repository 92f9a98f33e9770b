#include <gtest/gtest.h>

#include <vector>

#include "tests/support/fake_ui.h"

namespace tavrin {
namespace {

using testing::Harness;

const char* const kFields[] = {"txtO_Side_a",  "txtO_Side_b",  "txtO_Side_c",
                               "txtO_Angle_A", "txtO_Angle_B", "txtO_Angle_C"};
const QStringList kEntries{
    "txtO_Side_a", "txtO_Side_b", "txtO_Side_c",  "txtO_Angle_A", "txtO_Angle_B", "txtO_Angle_C",
    "chkDMSObl",   "lbla",        "lblb",         "lblc",         "lblAAng",      "lblBAng",
    "lblCAng",     "lblOblSides", "lblOblAngles", "cmdOblCalc",   "cmdOblClear",  "cmdODone"};
const char* const kTwoSolutions = "There are two solutions possible, both will be calculated.";

struct ObliqueCase {
    int row;                          // the known triple that answers, for reading failures
    std::vector<const char*> fields;  // a, b, c, A, B, C
    bool dms;
    int decPlace;
    bool twoSolutions;
    const char* answer;
};

void PrintTo(const ObliqueCase& c, std::ostream* os) {
    *os << "row " << c.row << " {";
    for (const char* f : c.fields) {
        *os << '"' << f << "\" ";
    }
    *os << '}' << (c.dms ? " DMS" : "") << " DecPlace " << c.decPlace;
}

// Expected texts worked out in doubles from the window's own steps.
const std::vector<ObliqueCase> kObliqueCases{
    {1,
     {"5", "", "", "40", "60", ""},
     false,
     4,
     false,
     "Side a=  5\r\n"
     "Side b=  6.7365\r\n"
     "Side c=  7.6604\r\n"
     "Angle A DD=  40\r\n"
     "Angle A DMS=  40°  0'  0\"\r\n"
     "Angle B DD=  60\r\n"
     "Angle B DMS=  60°  0'  0\"\r\n"
     "Angle C DD=  80\r\n"
     "Angle C DMS=  80°  0'  0\"\r\n"
     "Area=  16.5853\r\n"
     "Perimeter=  19.3969\r\n"
     "Inscribed CircleØ=  3.4202\r\n"
     "Circumscribed CircleØ=  7.7786\r\n"
     "\r\n"
     ""},
    {2,
     {"5", "7", "", "", "", "49"},
     false,
     4,
     false,
     "Side a=  5\r\n"
     "Side b=  7\r\n"
     "Side c=  5.2987\r\n"
     "Angle A DD=  45.411694\r\n"
     "Angle A DMS= 45°  24'  42\"\r\n"
     "Angle B DD=  85.588306\r\n"
     "Angle B DMS= 85°  35'  18\"\r\n"
     "Angle C DD=  49\r\n"
     "Angle C DMS=  49°  0'  0\"\r\n"
     "Area=  13.2074\r\n"
     "Perimeter=  17.2987\r\n"
     "Inscribed CircleØ=  3.054\r\n"
     "Circumscribed CircleØ=  7.0208\r\n"
     "\r\n"
     ""},
    {3,
     {"6", "8", "", "40", "", ""},
     false,
     4,
     true,
     "Side a=  6\r\n"
     "Side b=  8\r\n"
     "Side c=  9.2198\r\n"
     "Angle A DD=  40\r\n"
     "Angle A DMS=  40°  0'  0\"\r\n"
     "Angle B DD=  58.98697\r\n"
     "Angle B DMS= 58°  59'  13\"\r\n"
     "Angle C DD=  81.01303\r\n"
     "Angle C DMS= 81°  0'  47\"\r\n"
     "Area=  23.7054\r\n"
     "Perimeter=  23.2198\r\n"
     "Inscribed CircleØ=  4.0837\r\n"
     "Circumscribed CircleØ=  9.3343\r\n"
     "\r\n"
     "***Second Solution***\r\n"
     "Side a=  6\r\n"
     "Side b=  8\r\n"
     "Side c=  3.037\r\n"
     "Angle A DD=  40\r\n"
     "Angle A DMS=  40°  0'  0\"\r\n"
     "Angle B DD=  121.013\r\n"
     "Angle B DMS= 121°  0'  47\"\r\n"
     "Angle C=  18.987\r\n"
     "Angle C DMS= 18°  59'  13\"\r\n"
     "Area=  7.8085\r\n"
     "Perimeter=  17.037\r\n"
     "Inscribed CircleØ=  1.8333\r\n"
     "Circumscribed CircleØ=  9.3343"},
    {3,
     {"8", "6", "", "40", "", ""},
     false,
     4,
     false,
     "Side a=  8\r\n"
     "Side b=  6\r\n"
     "Side c=  11.6052\r\n"
     "Angle A DD=  40\r\n"
     "Angle A DMS=  40°  0'  0\"\r\n"
     "Angle B DD=  28.822039\r\n"
     "Angle B DMS= 28°  49'  19\"\r\n"
     "Angle C DD=  111.177961\r\n"
     "Angle C DMS= 111°  10'  41\"\r\n"
     "Area=  22.3791\r\n"
     "Perimeter=  25.6052\r\n"
     "Inscribed CircleØ=  3.496\r\n"
     "Circumscribed CircleØ=  12.4458\r\n"
     "\r\n"
     ""},
    {4,
     {"3", "4", "5", "", "", ""},
     false,
     4,
     false,
     "Side a=  3\r\n"
     "Side b=  4\r\n"
     "Side c=  5\r\n"
     "Angle A DD=  36.869898\r\n"
     "Angle A DMS= 36°  52'  12\"\r\n"
     "Angle B DD=  53.130102\r\n"
     "Angle B DMS= 53°  7'  48\"\r\n"
     "Angle C DD=  90\r\n"
     "Angle C DMS=  90°  0'  0\"\r\n"
     "Area=  6\r\n"
     "Perimeter=  12\r\n"
     "Inscribed CircleØ=  2\r\n"
     "Circumscribed CircleØ=  5\r\n"
     "\r\n"
     ""},
    {4,
     {"7.5", "6.25", "4.125", "", "", ""},
     false,
     3,
     false,
     "Side a=  7.5\r\n"
     "Side b=  6.25\r\n"
     "Side c=  4.125\r\n"
     "Angle A DD=  90.190986\r\n"
     "Angle A DMS= 90°  11'  28\"\r\n"
     "Angle B DD=  56.44221\r\n"
     "Angle B DMS= 56°  26'  32\"\r\n"
     "Angle C DD=  33.366803\r\n"
     "Angle C DMS= 33°  22'  0\"\r\n"
     "Area=  12.891\r\n"
     "Perimeter=  17.875\r\n"
     "Inscribed CircleØ=  2.8846\r\n"
     "Circumscribed CircleØ=  7.5\r\n"
     "\r\n"
     ""},
    {5,
     {"6", "", "8", "40", "", ""},
     false,
     4,
     true,
     "Side a=  6\r\n"
     "Side b=  9.2198\r\n"
     "Side c=  8\r\n"
     "Angle A DD=  40\r\n"
     "Angle A DMS=  40°  0'  0\"\r\n"
     "Angle B DD=  81.01303\r\n"
     "Angle B DMS= 81°  0'  47\"\r\n"
     "Angle C DD=  58.98697\r\n"
     "Angle C DMS= 58°  59'  13\"\r\n"
     "Area=  23.7054\r\n"
     "Perimeter=  23.2198\r\n"
     "Inscribed CircleØ=  4.0837\r\n"
     "Circumscribed CircleØ=  9.3343\r\n"
     "\r\n"
     "***Second Solution***\r\n"
     "Side a=  6\r\n"
     "Side b=  3.037\r\n"
     "Side c=  8\r\n"
     "Angle A DD=  40\r\n"
     "Angle A DMS=  40°  0'  0\"\r\n"
     "Angle B DD=  18.987\r\n"
     "Angle B DMS= 18°  59'  13\"\r\n"
     "Angle C=  121.013\r\n"
     "Angle C DMS= 121°  0'  47\"\r\n"
     "Area=  7.8085\r\n"
     "Perimeter=  17.037\r\n"
     "Inscribed CircleØ=  1.8333\r\n"
     "Circumscribed CircleØ=  9.3343"},
    {5,
     {"9", "", "8", "40", "", ""},
     false,
     4,
     false,
     "Side a=  9\r\n"
     "Side b=  13.5146\r\n"
     "Side c=  8\r\n"
     "Angle A DD=  40\r\n"
     "Angle A DMS=  40°  0'  0\"\r\n"
     "Angle B DD=  105.154411\r\n"
     "Angle B DMS= 105°  9'  16\"\r\n"
     "Angle C DD=  34.845589\r\n"
     "Angle C DMS= 34°  50'  44\"\r\n"
     "Area=  34.7481\r\n"
     "Perimeter=  30.5146\r\n"
     "Inscribed CircleØ=  4.5549\r\n"
     "Circumscribed CircleØ=  14.0015\r\n"
     "\r\n"
     ""},
    {6,
     {"", "4.5", "", "", "35", "95"},
     false,
     4,
     false,
     "Side a=  6.01\r\n"
     "Side b=  4.5\r\n"
     "Side c=  7.8157\r\n"
     "Angle A DD=  50\r\n"
     "Angle A DMS=  50°  0'  0\"\r\n"
     "Angle B DD=  35\r\n"
     "Angle B DMS=  35°  0'  0\"\r\n"
     "Angle C DD=  95\r\n"
     "Angle C DMS=  95°  0'  0\"\r\n"
     "Area=  13.4711\r\n"
     "Perimeter=  18.3257\r\n"
     "Inscribed CircleØ=  2.9404\r\n"
     "Circumscribed CircleØ=  7.8455\r\n"
     "\r\n"
     ""},
    {7,
     {"8", "6", "", "", "40", ""},
     false,
     4,
     true,
     "Side a=  8\r\n"
     "Side b=  6\r\n"
     "Side c=  9.2198\r\n"
     "Angle A DD=  58.98697\r\n"
     "Angle A DMS= 58°  59'  13\"\r\n"
     "Angle B DD=  40\r\n"
     "Angle B DMS=  40°  0'  0\"\r\n"
     "Angle C DD=  81.01303\r\n"
     "Angle C DMS= 81°  0'  47\"\r\n"
     "Area=  23.7054\r\n"
     "Perimeter=  23.2198\r\n"
     "Inscribed CircleØ=  4.0837\r\n"
     "Circumscribed CircleØ=  9.3343\r\n"
     "\r\n"
     "***Second Solution***\r\n"
     "Side a=  8\r\n"
     "Side b=  6\r\n"
     "Side c=  3.037\r\n"
     "Angle A DD=  121.013\r\n"
     "Angle A DMS= 121°  0'  47\"\r\n"
     "Angle B DD=  40\r\n"
     "Angle B DMS=  40°  0'  0\"\r\n"
     "Angle C=  18.987\r\n"
     "Angle C DMS= 18°  59'  13\"\r\n"
     "Area=  7.8085\r\n"
     "Perimeter=  17.037\r\n"
     "Inscribed CircleØ=  1.8333\r\n"
     "Circumscribed CircleØ=  9.3343"},
    {7,
     {"5", "6", "", "", "40", ""},
     false,
     4,
     false,
     "Side a=  5\r\n"
     "Side b=  6\r\n"
     "Side c=  8.8968\r\n"
     "Angle A DD=  32.388434\r\n"
     "Angle A DMS= 32°  23'  18\"\r\n"
     "Angle B DD=  40\r\n"
     "Angle B DMS=  40°  0'  0\"\r\n"
     "Angle C DD=  107.611566\r\n"
     "Angle C DMS= 107°  36'  42\"\r\n"
     "Area=  14.2969\r\n"
     "Perimeter=  19.8968\r\n"
     "Inscribed CircleØ=  2.8742\r\n"
     "Circumscribed CircleØ=  9.3343\r\n"
     "\r\n"
     ""},
    {8,
     {"4", "", "6", "", "120", ""},
     false,
     4,
     false,
     "Side a=  4\r\n"
     "Side b=  8.7178\r\n"
     "Side c=  6\r\n"
     "Angle A DD=  23.413224\r\n"
     "Angle A DMS= 23°  24'  48\"\r\n"
     "Angle B DD=  120\r\n"
     "Angle B DMS=  120°  0'  0\"\r\n"
     "Angle C DD=  36.586776\r\n"
     "Angle C DMS= 36°  35'  12\"\r\n"
     "Area=  10.3923\r\n"
     "Perimeter=  18.7178\r\n"
     "Inscribed CircleØ=  2.2208\r\n"
     "Circumscribed CircleØ=  10.0664\r\n"
     "\r\n"
     ""},
    {9,
     {"2.75", "", "", "", "20", "30"},
     false,
     4,
     false,
     "Side a=  2.75\r\n"
     "Side b=  1.2278\r\n"
     "Side c=  1.7949\r\n"
     "Angle A DD=  130\r\n"
     "Angle A DMS=  130°  0'  0\"\r\n"
     "Angle B DD=  20\r\n"
     "Angle B DMS=  20°  0'  0\"\r\n"
     "Angle C DD=  30\r\n"
     "Angle C DMS=  30°  0'  0\"\r\n"
     "Area=  .8441\r\n"
     "Perimeter=  5.7727\r\n"
     "Inscribed CircleØ=  .5849\r\n"
     "Circumscribed CircleØ=  3.5899\r\n"
     "\r\n"
     ""},
    {10,
     {"10", "", "", "100", "", "30"},
     false,
     4,
     false,
     "Side a=  10\r\n"
     "Side b=  7.7786\r\n"
     "Side c=  5.0771\r\n"
     "Angle A DD=  100\r\n"
     "Angle A DMS=  100°  0'  0\"\r\n"
     "Angle B DD=  50\r\n"
     "Angle B DMS=  50°  0'  0\"\r\n"
     "Angle C DD=  30\r\n"
     "Angle C DMS=  30°  0'  0\"\r\n"
     "Area=  19.4465\r\n"
     "Perimeter=  22.8558\r\n"
     "Inscribed CircleØ=  3.4034\r\n"
     "Circumscribed CircleØ=  10.1543\r\n"
     "\r\n"
     ""},
    {11,
     {"8", "", "6", "", "", "40"},
     false,
     4,
     true,
     "Side a=  8\r\n"
     "Side b=  9.2198\r\n"
     "Side c=  6\r\n"
     "Angle A DD=  58.98697\r\n"
     "Angle A DMS= 58°  59'  13\"\r\n"
     "Angle B DD=  81.01303\r\n"
     "Angle B DMS= 81°  0'  47\"\r\n"
     "Angle C DD=  40\r\n"
     "Angle C DMS=  40°  0'  0\"\r\n"
     "Area=  23.7054\r\n"
     "Perimeter=  23.2198\r\n"
     "Inscribed CircleØ=  4.0837\r\n"
     "Circumscribed CircleØ=  9.3343\r\n"
     "\r\n"
     "***Second Solution***\r\n"
     "Side a=  8\r\n"
     "Side b=  3.037\r\n"
     "Side c=  6\r\n"
     "Angle A DD=  121.013\r\n"
     "Angle A DMS= 121°  0'  47\"\r\n"
     "Angle B DD=  18.987\r\n"
     "Angle B DMS= 18°  59'  13\"\r\n"
     "Angle C=  40\r\n"
     "Angle C DMS=  40°  0'  0\"\r\n"
     "Area=  7.8085\r\n"
     "Perimeter=  17.037\r\n"
     "Inscribed CircleØ=  1.8333\r\n"
     "Circumscribed CircleØ=  9.3343"},
    {11,
     {"5", "", "6", "", "", "40"},
     false,
     4,
     false,
     "Side a=  5\r\n"
     "Side b=  8.8968\r\n"
     "Side c=  6\r\n"
     "Angle A DD=  32.388434\r\n"
     "Angle A DMS= 32°  23'  18\"\r\n"
     "Angle B DD=  107.611566\r\n"
     "Angle B DMS= 107°  36'  42\"\r\n"
     "Angle C DD=  40\r\n"
     "Angle C DMS=  40°  0'  0\"\r\n"
     "Area=  14.2969\r\n"
     "Perimeter=  19.8968\r\n"
     "Inscribed CircleØ=  2.8742\r\n"
     "Circumscribed CircleØ=  9.3343\r\n"
     "\r\n"
     ""},
    {12,
     {"", "3", "4", "90", "", ""},
     false,
     4,
     false,
     "Side a=  5\r\n"
     "Side b=  3\r\n"
     "Side c=  4\r\n"
     "Angle A DD=  90\r\n"
     "Angle A DMS=  90°  0'  0\"\r\n"
     "Angle B DD=  36.869898\r\n"
     "Angle B DMS= 36°  52'  12\"\r\n"
     "Angle C DD=  53.130102\r\n"
     "Angle C DMS= 53°  7'  48\"\r\n"
     "Area=  6\r\n"
     "Perimeter=  12\r\n"
     "Inscribed CircleØ=  2\r\n"
     "Circumscribed CircleØ=  5\r\n"
     "\r\n"
     ""},
    {13,
     {"", "6", "8", "", "40", ""},
     false,
     4,
     true,
     "Side a=  9.2198\r\n"
     "Side b=  6\r\n"
     "Side c=  8\r\n"
     "Angle A DD=  81.01303\r\n"
     "Angle A DMS= 81°  0'  47\"\r\n"
     "Angle B DD=  40\r\n"
     "Angle B DMS=  40°  0'  0\"\r\n"
     "Angle C DD=  58.98697\r\n"
     "Angle C DMS= 58°  59'  13\"\r\n"
     "Area=  23.7054\r\n"
     "Perimeter=  23.2198\r\n"
     "Inscribed CircleØ=  4.0837\r\n"
     "Circumscribed CircleØ=  9.3343\r\n"
     "\r\n"
     "***Second Solution***\r\n"
     "Side a=  3.037\r\n"
     "Side b=  6\r\n"
     "Side c=  8\r\n"
     "Angle A DD=  18.987\r\n"
     "Angle A DMS= 18°  59'  13\"\r\n"
     "Angle B DD=  40\r\n"
     "Angle B DMS=  40°  0'  0\"\r\n"
     "Angle C=  121.013\r\n"
     "Angle C DMS= 121°  0'  47\"\r\n"
     "Area=  7.8085\r\n"
     "Perimeter=  17.037\r\n"
     "Inscribed CircleØ=  1.8333\r\n"
     "Circumscribed CircleØ=  9.3343"},
    {13,
     {"", "9", "8", "", "40", ""},
     false,
     4,
     false,
     "Side a=  13.5146\r\n"
     "Side b=  9\r\n"
     "Side c=  8\r\n"
     "Angle A DD=  105.154411\r\n"
     "Angle A DMS= 105°  9'  16\"\r\n"
     "Angle B DD=  40\r\n"
     "Angle B DMS=  40°  0'  0\"\r\n"
     "Angle C DD=  34.845589\r\n"
     "Angle C DMS= 34°  50'  44\"\r\n"
     "Area=  34.7481\r\n"
     "Perimeter=  30.5146\r\n"
     "Inscribed CircleØ=  4.5549\r\n"
     "Circumscribed CircleØ=  14.0015\r\n"
     "\r\n"
     ""},
    {14,
     {"", "12", "", "45", "45", ""},
     false,
     4,
     false,
     "Side a=  12\r\n"
     "Side b=  12\r\n"
     "Side c=  16.9706\r\n"
     "Angle A DD=  45\r\n"
     "Angle A DMS=  45°  0'  0\"\r\n"
     "Angle B DD=  45\r\n"
     "Angle B DMS=  45°  0'  0\"\r\n"
     "Angle C DD=  90\r\n"
     "Angle C DMS=  90°  0'  0\"\r\n"
     "Area=  72\r\n"
     "Perimeter=  40.9706\r\n"
     "Inscribed CircleØ=  7.0294\r\n"
     "Circumscribed CircleØ=  16.9706\r\n"
     "\r\n"
     ""},
    {15,
     {"", "12", "", "70", "", "50"},
     false,
     4,
     false,
     "Side a=  13.0208\r\n"
     "Side b=  12\r\n"
     "Side c=  10.6146\r\n"
     "Angle A DD=  70\r\n"
     "Angle A DMS=  70°  0'  0\"\r\n"
     "Angle B DD=  60\r\n"
     "Angle B DMS=  60°  0'  0\"\r\n"
     "Angle C DD=  50\r\n"
     "Angle C DMS=  50°  0'  0\"\r\n"
     "Area=  59.8469\r\n"
     "Perimeter=  35.6354\r\n"
     "Inscribed CircleØ=  6.7177\r\n"
     "Circumscribed CircleØ=  13.8564\r\n"
     "\r\n"
     ""},
    {16,
     {"", "8", "6", "", "", "40"},
     false,
     4,
     true,
     "Side a=  9.2198\r\n"
     "Side b=  8\r\n"
     "Side c=  6\r\n"
     "Angle A DD=  81.01303\r\n"
     "Angle A DMS= 81°  0'  47\"\r\n"
     "Angle B DD=  58.98697\r\n"
     "Angle B DMS= 58°  59'  13\"\r\n"
     "Angle C DD=  40\r\n"
     "Angle C DMS=  40°  0'  0\"\r\n"
     "Area=  23.7054\r\n"
     "Perimeter=  23.2198\r\n"
     "Inscribed CircleØ=  4.0837\r\n"
     "Circumscribed CircleØ=  9.3343\r\n"
     "\r\n"
     "***Second Solution***\r\n"
     "Side a=  3.037\r\n"
     "Side b=  8\r\n"
     "Side c=  6\r\n"
     "Angle A DD=  18.987\r\n"
     "Angle A DMS= 18°  59'  13\"\r\n"
     "Angle B DD=  121.013\r\n"
     "Angle B DMS= 121°  0'  47\"\r\n"
     "Angle C=  40\r\n"
     "Angle C DMS=  40°  0'  0\"\r\n"
     "Area=  7.8085\r\n"
     "Perimeter=  17.037\r\n"
     "Inscribed CircleØ=  1.8333\r\n"
     "Circumscribed CircleØ=  9.3343"},
    {16,
     {"", "5", "6", "", "", "40"},
     false,
     4,
     false,
     "Side a=  8.8968\r\n"
     "Side b=  5\r\n"
     "Side c=  6\r\n"
     "Angle A DD=  107.611566\r\n"
     "Angle A DMS= 107°  36'  42\"\r\n"
     "Angle B DD=  32.388434\r\n"
     "Angle B DMS= 32°  23'  18\"\r\n"
     "Angle C DD=  40\r\n"
     "Angle C DMS=  40°  0'  0\"\r\n"
     "Area=  14.2969\r\n"
     "Perimeter=  19.8968\r\n"
     "Inscribed CircleØ=  2.8742\r\n"
     "Circumscribed CircleØ=  9.3343\r\n"
     "\r\n"
     ""},
    {17,
     {"", "", "3", "20", "30", ""},
     false,
     4,
     false,
     "Side a=  1.3394\r\n"
     "Side b=  1.9581\r\n"
     "Side c=  3\r\n"
     "Angle A DD=  20\r\n"
     "Angle A DMS=  20°  0'  0\"\r\n"
     "Angle B DD=  30\r\n"
     "Angle B DMS=  30°  0'  0\"\r\n"
     "Angle C DD=  130\r\n"
     "Angle C DMS=  130°  0'  0\"\r\n"
     "Area=  1.0046\r\n"
     "Perimeter=  6.2975\r\n"
     "Inscribed CircleØ=  .6381\r\n"
     "Circumscribed CircleØ=  3.9162\r\n"
     "\r\n"
     ""},
    {18,
     {"", "", "3", "20", "", "30"},
     false,
     4,
     false,
     "Side a=  2.0521\r\n"
     "Side b=  4.5963\r\n"
     "Side c=  3\r\n"
     "Angle A DD=  20\r\n"
     "Angle A DMS=  20°  0'  0\"\r\n"
     "Angle B DD=  130\r\n"
     "Angle B DMS=  130°  0'  0\"\r\n"
     "Angle C DD=  30\r\n"
     "Angle C DMS=  30°  0'  0\"\r\n"
     "Area=  2.358\r\n"
     "Perimeter=  9.6484\r\n"
     "Inscribed CircleØ=  .9776\r\n"
     "Circumscribed CircleØ=  6\r\n"
     "\r\n"
     ""},
    {19,
     {"", "", "3", "", "20", "30"},
     false,
     2,
     false,
     "Side a=  4.5963\r\n"
     "Side b=  2.0521\r\n"
     "Side c=  3\r\n"
     "Angle A DD=  130\r\n"
     "Angle A DMS=  130°  0'  0\"\r\n"
     "Angle B DD=  20\r\n"
     "Angle B DMS=  20°  0'  0\"\r\n"
     "Angle C DD=  30\r\n"
     "Angle C DMS=  30°  0'  0\"\r\n"
     "Area=  2.36\r\n"
     "Perimeter=  9.6484\r\n"
     "Inscribed CircleØ=  .9776\r\n"
     "Circumscribed CircleØ=  6\r\n"
     "\r\n"
     ""},
    {3,
     {"6", "8", "", "40.3", "", ""},
     true,
     4,
     true,
     "Side a=  6\r\n"
     "Side b=  8\r\n"
     "Side c=  9.0842\r\n"
     "Angle A DD=  40.5\r\n"
     "Angle A DMS= 40°  30'  0\"\r\n"
     "Angle B DD=  59.989153\r\n"
     "Angle B DMS= 59°  59'  21\"\r\n"
     "Angle C DD=  79.510847\r\n"
     "Angle C DMS= 79°  30'  39\"\r\n"
     "Area=  23.5989\r\n"
     "Perimeter=  23.0842\r\n"
     "Inscribed CircleØ=  4.0892\r\n"
     "Circumscribed CircleØ=  9.2386\r\n"
     "\r\n"
     "***Second Solution***\r\n"
     "Side a=  6\r\n"
     "Side b=  8\r\n"
     "Side c=  3.0823\r\n"
     "Angle A DD=  40.5\r\n"
     "Angle A DMS= 40°  30'  0\"\r\n"
     "Angle B DD=  120.0108\r\n"
     "Angle B DMS= 120°  0'  39\"\r\n"
     "Angle C=  19.4892\r\n"
     "Angle C DMS= 19°  29'  21\"\r\n"
     "Area=  8.0071\r\n"
     "Perimeter=  17.0823\r\n"
     "Inscribed CircleØ=  1.8749\r\n"
     "Circumscribed CircleØ=  9.2386"},
    {1,
     {"5", "", "", "22.0322", "60.15", ""},
     true,
     4,
     false,
     "Side a=  5\r\n"
     "Side b=  11.5601\r\n"
     "Side c=  13.1952\r\n"
     "Angle A DD=  22.056111\r\n"
     "Angle A DMS= 22°  3'  22\"\r\n"
     "Angle B DD=  60.25\r\n"
     "Angle B DMS= 60°  15'  0\"\r\n"
     "Angle C DD=  97.693889\r\n"
     "Angle C DMS= 97°  41'  38\"\r\n"
     "Area=  28.6401\r\n"
     "Perimeter=  29.7553\r\n"
     "Inscribed CircleØ=  3.8501\r\n"
     "Circumscribed CircleØ=  13.3151\r\n"
     "\r\n"
     ""},
    {3,
     {"5.15", "8", "", "40", "", ""},
     false,
     4,
     true,
     "Side a=  5.15\r\n"
     "Side b=  8\r\n"
     "Side c=  6.4099\r\n"
     "Angle A DD=  40\r\n"
     "Angle A DMS=  40°  0'  0\"\r\n"
     "Angle B DD=  86.866651\r\n"
     "Angle B DMS= 86°  51'  60\"\r\n"
     "Angle C DD=  53.133349\r\n"
     "Angle C DMS= 53°  8'  0\"\r\n"
     "Area=  16.4807\r\n"
     "Perimeter=  19.5599\r\n"
     "Inscribed CircleØ=  3.3703\r\n"
     "Circumscribed CircleØ=  8.012\r\n"
     "\r\n"
     "***Second Solution***\r\n"
     "Side a=  5.15\r\n"
     "Side b=  8\r\n"
     "Side c=  5.8469\r\n"
     "Angle A DD=  40\r\n"
     "Angle A DMS=  40°  0'  0\"\r\n"
     "Angle B DD=  93.1333\r\n"
     "Angle B DMS= 93°  8'  0\"\r\n"
     "Angle C=  46.8667\r\n"
     "Angle C DMS= 46°  51'  60\"\r\n"
     "Area=  15.0331\r\n"
     "Perimeter=  18.9969\r\n"
     "Inscribed CircleØ=  3.1654\r\n"
     "Circumscribed CircleØ=  8.012"},
    {3,
     {"7.9999", "8", "", "40", "", ""},
     false,
     4,
     true,
     "Side a=  7.9999\r\n"
     "Side b=  8\r\n"
     "Side c=  12.2566\r\n"
     "Angle A DD=  40\r\n"
     "Angle A DMS=  40°  0'  0\"\r\n"
     "Angle B DD=  40.000601\r\n"
     "Angle B DMS= 40°  0'  2\"\r\n"
     "Angle C DD=  99.999399\r\n"
     "Angle C DMS= 99°  59'  58\"\r\n"
     "Area=  31.5135\r\n"
     "Perimeter=  28.2565\r\n"
     "Inscribed CircleØ=  4.4611\r\n"
     "Circumscribed CircleØ=  12.4456\r\n"
     "\r\n"
     "***Second Solution***\r\n"
     "Side a=  7.9999\r\n"
     "Side b=  8\r\n"
     "Side c=  .0001\r\n"
     "Angle A DD=  40\r\n"
     "Angle A DMS=  40°  0'  0\"\r\n"
     "Angle B DD=  139.9994\r\n"
     "Angle B DMS= 139°  59'  58\"\r\n"
     "Angle C=  .0006\r\n"
     "Angle C DMS= 6°  5'  0\"\r\n"
     "Area=  .0003\r\n"
     "Perimeter=  16\r\n"
     "Inscribed CircleØ=  .0001\r\n"
     "Circumscribed CircleØ=  12.4456"},
    {3,
     {"8", "8", "", "40", "", ""},
     false,
     4,
     false,
     "Side a=  8\r\n"
     "Side b=  8\r\n"
     "Side c=  12.2567\r\n"
     "Angle A DD=  40\r\n"
     "Angle A DMS=  40°  0'  0\"\r\n"
     "Angle B DD=  40\r\n"
     "Angle B DMS=  40°  0'  0\"\r\n"
     "Angle C DD=  100\r\n"
     "Angle C DMS=  100°  0'  0\"\r\n"
     "Area=  31.5138\r\n"
     "Perimeter=  28.2567\r\n"
     "Inscribed CircleØ=  4.4611\r\n"
     "Circumscribed CircleØ=  12.4458\r\n"
     "\r\n"
     ""},
    {3,
     {"8.0001", "8", "", "40", "", ""},
     false,
     4,
     false,
     "Side a=  8.0001\r\n"
     "Side b=  8\r\n"
     "Side c=  12.2568\r\n"
     "Angle A DD=  40\r\n"
     "Angle A DMS=  40°  0'  0\"\r\n"
     "Angle B DD=  39.999399\r\n"
     "Angle B DMS= 39°  59'  58\"\r\n"
     "Angle C DD=  100.000601\r\n"
     "Angle C DMS= 100°  0'  2\"\r\n"
     "Area=  31.5142\r\n"
     "Perimeter=  28.2569\r\n"
     "Inscribed CircleØ=  4.4611\r\n"
     "Circumscribed CircleØ=  12.4459\r\n"
     "\r\n"
     ""},
};

Form& OpenWithFields(Harness& h, const std::vector<const char*>& fields, bool dms) {
    Form& f = h.open("frmOblique");
    if (dms) {
        h.click(f, "chkDMSObl");
    }
    for (int i = 0; i < 6; ++i) {
        h.set(f, kFields[i], QString::fromUtf8(fields[i]));
    }
    return f;
}

void ExpectLayout(const Form& f, bool answer) {
    for (const QString& name : kEntries) {
        EXPECT_EQ(f.control(name).visible, !answer) << name.toStdString();
    }
    EXPECT_EQ(f.control("txtOblAns").visible, answer);
    EXPECT_EQ(f.control("cmdOblDone").visible, answer);
}

class ObliqueAnswers : public ::testing::TestWithParam<ObliqueCase> {};

TEST_P(ObliqueAnswers, WritesBothSolutionsWhereTwoStand) {
    const ObliqueCase& c = GetParam();
    Harness h;
    h.app.decPlace = static_cast<std::int16_t>(c.decPlace);
    Form& f = OpenWithFields(h, c.fields, c.dms);
    h.click(f, "cmdOblCalc");
    EXPECT_EQ(h.ui.messageTexts(), c.twoSolutions ? QStringList{kTwoSolutions} : QStringList{});
    EXPECT_EQ(f.text("txtOblAns"), QString::fromUtf8(c.answer));
    ExpectLayout(f, true);
}

INSTANTIATE_TEST_SUITE_P(Table, ObliqueAnswers, ::testing::ValuesIn(kObliqueCases));

struct ObliqueRefusal {
    std::vector<const char*> fields;
    bool dms;
    std::vector<const char*> messages;
    const char* box;
};

void PrintTo(const ObliqueRefusal& c, std::ostream* os) {
    *os << '{';
    for (const char* f : c.fields) {
        *os << '"' << f << "\" ";
    }
    *os << '}' << (c.dms ? " DMS" : "");
}

const std::vector<ObliqueRefusal> kObliqueRefusals{
    {{"3", "4", "", "", "", ""},
     false,
     {"Error, Please fill three data fields with values greater than zero."},
     "Calculating..."},
    {{"-5", "", "", "40", "60", ""}, false, {"Error, Invalid Input"}, "Calculating..."},
    {{"3", "4", "abc", "", "", ""},
     false,
     {"Error, Please fill three data fields with values greater than zero."},
     "Calculating..."},
    {{"3", "4", "5", "abc", "", ""},
     false,
     {"Error, Please fill three data fields with values greater than zero."},
     "Calculating..."},
    {{"3", "4", "0", "", "", ""},
     false,
     {"Error, Please fill three data fields with values greater than zero."},
     "Calculating..."},
    {{"", "", "", "60", "60", "60"},
     false,
     {"Error, Three angles cannot be entered."},
     "Calculating..."},
    {{"3", "4", "5", "1", "", ""},
     false,
     {"Error, Please fill three data fields with values greater than zero."},
     "Calculating..."},
    {{"5", "", "", "100", "80", ""}, false, {"Error, Invalid Input"}, "Calculating..."},
    {{"", "5", "", "", "100", "80"}, false, {"Error, Invalid Input"}, "Calculating..."},
    {{"", "5", "", "", "10", "180"}, false, {"Error, Invalid Input"}, "Calculating..."},
    {{"5", "7", "", "", "", "180"}, false, {"Error, Invalid Input"}, "Calculating..."},
    {{"5", "", "7", "", "200", ""}, false, {"Error, Invalid Input"}, "Calculating..."},
    {{"", "5", "7", "180", "", ""}, false, {"Error, Invalid Input"}, "Calculating..."},
    {{"2", "8", "", "40", "", ""}, false, {"Error, Invalid Input"}, "Calculating..."},
    {{"2", "", "8", "40", "", ""}, false, {"Error, Invalid Input"}, "Calculating..."},
    {{"8", "2", "", "", "40", ""}, false, {"Invalid Input"}, "Calculating..."},
    {{"8", "", "2", "", "", "40"}, false, {"Error, Invalid Input"}, "Calculating..."},
    {{"", "2", "8", "", "40", ""}, false, {"Invalid Input"}, "Calculating..."},
    {{"", "8", "2", "", "", "40"}, false, {"Invalid Input"}, "Calculating..."},
    {{"6", "8", "", "180", "", ""}, false, {"Error, Invalid Input"}, "Calculating..."},
    {{"8", "6", "", "", "190", ""}, false, {"Error, Invalid Input"}, "Calculating..."},
    {{"5.14", "8", "", "40", "", ""}, false, {"Error, Invalid Input"}, "Calculating..."},
    {{"1", "2", "3", "", "", ""}, false, {"Error, Invalid Input"}, "Calculating..."},
    {{"3", "1", "1", "", "", ""}, false, {"Error, Invalid Input"}, "Calculating..."},
    {{"-3", "-4", "-5", "", "", ""}, false, {"Error, Invalid Input"}, "Calculating..."},
    {{"1", "", "", "30", "-10", ""}, false, {"Error, Invalid Input"}, "Calculating..."},
    {{"7.9", "8", "", "100", "", ""}, false, {"Error, Invalid Input"}, "Calculating..."},
    {{"6", "8", "", "180.1", "", ""}, true, {"Error, Invalid Input"}, "Calculating..."},
    {{"", "", "", "60", "60", "60"},
     true,
     {"Error, Three angles cannot be entered."},
     "Calculating..."},
    {{"1", "2", "", "", "", "1E-6"}, false, {"invalid input"}, "Calculating..."},
    {{"", "1", "2", "1E-6", "", ""}, false, {"invalid input"}, "Calculating..."},
    {{"5", "7", "", "", "", "1E-7"}, false, {"Error, Invalid Input."}, "Calculating..."},
    {{"", "5", "7", "1E-7", "", ""}, false, {"Error, Invalid Input."}, "Calculating..."},
    {{"5", "", "7", "", "1E-7", ""}, false, {"Error, Invalid Input"}, "Calculating..."},
};

class ObliqueRefusals : public ::testing::TestWithParam<ObliqueRefusal> {};

TEST_P(ObliqueRefusals, ShowsTheMessageAndReturnsToTheEntries) {
    const ObliqueRefusal& c = GetParam();
    Harness h;
    Form& f = OpenWithFields(h, c.fields, c.dms);
    h.click(f, "cmdOblCalc");
    QStringList expected;
    for (const char* m : c.messages) {
        expected << QString::fromLatin1(m);
    }
    EXPECT_EQ(h.ui.messageTexts(), expected);
    EXPECT_EQ(h.ui.messages.back().title, "Program Message");
    ExpectLayout(f, false);
    // The hidden answer box keeps what the calculation had written.
    EXPECT_EQ(f.text("txtOblAns"), QString::fromLatin1(c.box));
    for (int i = 0; i < 6; ++i) {
        EXPECT_EQ(f.text(kFields[i]), QString::fromLatin1(c.fields[i]));
    }
}

INSTANTIATE_TEST_SUITE_P(Table, ObliqueRefusals, ::testing::ValuesIn(kObliqueRefusals));

TEST(Oblique, StartsInTheEntryLayout) {
    Harness h;
    Form& f = h.open("frmOblique");
    EXPECT_EQ(f.title(), "Oblique Triangle Trigonometry");
    ExpectLayout(f, false);
    EXPECT_FALSE(f.value("chkDMSObl"));
    EXPECT_EQ(f.caption("chkDMSObl"), "Entering DMS");
    EXPECT_EQ(f.caption("lblOblSides"), "Sides");
    EXPECT_EQ(f.caption("lblOblAngles"), "Angles");
    EXPECT_EQ(f.caption("cmdOblCalc"), "Calculate");
    EXPECT_EQ(f.caption("cmdOblClear"), "Clear All");
    EXPECT_EQ(f.caption("cmdODone"), "Done");
    EXPECT_EQ(f.caption("cmdOblDone"), "Done");
    EXPECT_TRUE(f.control("txtOblAns").locked);
}

TEST(Oblique, DoneLeavesTheAnswerAndKeepsTheFields) {
    Harness h;
    Form& f = OpenWithFields(h, {"3", "4", "5", "", "", ""}, false);
    h.click(f, "cmdOblCalc");
    h.click(f, "cmdOblDone");
    ExpectLayout(f, false);
    EXPECT_EQ(f.text("txtOblAns"), "");
    EXPECT_EQ(f.text("txtO_Side_a"), "3");
    EXPECT_EQ(f.text("txtO_Side_c"), "5");
    h.set(f, "txtO_Side_c", "");
    h.set(f, "txtO_Angle_C", "90");
    h.click(f, "cmdOblCalc");
    EXPECT_TRUE(f.text("txtOblAns").startsWith("Side a=  3\r\nSide b=  4\r\nSide c=  5\r\n"));
}

TEST(Oblique, ClearAllEmptiesTheFieldsAndTheAnswer) {
    Harness h;
    Form& f = OpenWithFields(h, {"6", "8", "", "40.3", "", ""}, true);
    h.click(f, "cmdOblCalc");
    h.click(f, "cmdOblClear");
    for (const char* name : kFields) {
        EXPECT_EQ(f.text(name), "") << name;
    }
    EXPECT_EQ(f.text("txtOblAns"), "");
    EXPECT_TRUE(f.value("chkDMSObl"));
}

TEST(Oblique, TheEntryDoneClosesTheWindow) {
    Harness h;
    Form& f = OpenWithFields(h, {"3", "4", "5", "", "", ""}, false);
    h.click(f, "cmdODone");
    EXPECT_EQ(h.app.find("frmOblique"), nullptr);
    // Opened again, it starts empty.
    Form& again = h.open("frmOblique");
    EXPECT_EQ(again.text("txtO_Side_a"), "");
}

TEST(Oblique, DecPlaceRulesTheAreaAlone) {
    Harness h;
    h.app.decPlace = 1;
    Form& f = OpenWithFields(h, {"5", "", "", "40", "60", ""}, false);
    h.click(f, "cmdOblCalc");
    const QString answer = f.text("txtOblAns");
    EXPECT_TRUE(answer.contains("\r\nArea=  16.6\r\n"));
    EXPECT_TRUE(answer.contains("\r\nSide b=  6.7365\r\n"));
    EXPECT_TRUE(answer.contains("\r\nPerimeter=  19.3969\r\n"));
}

}  // namespace
}  // namespace tavrin
