#include "system_pattern.h"

static constexpr int french_table = 0;
static constexpr int american_table = 1;

static QStringList section_table()
{
    // clang-format off
    return {
        R"(\bST:)",
        R"(\bGW:)",
        R"(\bVE:)",
        R"(\bAL:)",
    };
    // clang-format on
}

static QStringList french_jeton_table()
{
    // clang-format off
    return {
        R"(\b(PL[0-3][0-6]|PL[0-2][0-9])\b)",
        R"(\b(CA[0-2][1-3]|CA[0-1][1-9]|CA[1-2][0])\b)",
        R"(\b(TP[0][1-9]|TP[1][0-4])\b)",
        R"(\b(TS[0][1-9]|TS[1][0-1])\b)",
        R"(\b(CH[0-5][1-9]|CH[1-6][0])\b)",
        R"(\bKL[0][1-3]\b)",
        R"(\bDZ[0][1-3]\b)",
        R"(\bEC[0][1-6]\b)",
        R"(\b(GS|KS|OR|ZS)\b)",
        R"(\bFI[0][0-9]\b)",
        R"(\b(EN|ZN|DN)([0-3][0-6]|[0-2][0-9])\b)",
        R"(\b(PL|CA|TP|TS|CH|KL|DZ|EC|EN|ZN|DN|FI)\b)",
    };
    // clang-format on
}

static QStringList american_jeton_table()
{
    QStringList patterns = french_jeton_table();
    // clang-format off
    patterns[ 0] = R"(\b(PL[0-3][0-7]|PL[0-2][0-9])\b)";
    patterns[ 2] = R"(\b(TP[0][1-9]|TP[1][0-6])\b)";
    patterns[ 4] = R"(\b(CH[0-5][1-9]|CH[1-6][0]|CH[6][1-3])\b)";
    patterns[10] = R"(\b(EN|ZN|DN)([0-3][0-7]|[0-2][0-9])\b)";
    // clang-format on
    return patterns;
}

static QStringList jeton_table(int table_type)
{
    if (table_type == french_table) return french_jeton_table();
    if (table_type == american_table) return american_jeton_table();
    return {};
}

// QRegExp turns the backward range of [+-*/] round: the class holds '*', '+' and '/', no hyphen.
static QStringList argument_table()
{
    // clang-format off
    return {
        R"(\bEI[0-9][ ]*[(][ ]*\d{1,6}[ ]*[)])",
        R"(\bEI[0-9][ ]*[+-*/]?[ ]*\d{1,6})",
        R"(\bCO[0-9]{2}[ ]*[(][ ]*[<>+-]{0,1}[=]?[ ]*\d{1,6}[ ]*[)])",
        R"(\bCO[0-9]{2}[ ]*[(][ ]*[<>+-]{0,1}[=]?[ ]*CO[0-9]{2}[ ]*[)])",
        R"(\bCO[0-9]{2}[ ]*[(][ ]*[<][>][ ]*\d{1,6}[ ]*[)])",
        R"(\bCO[0-9]{2}[ ]*[(][ ]*[<][>][ ]*CO[0-9]{2}[ ]*[)])",
        R"(\bEI[0-9][ ]*[(][ ]*ST[1-9][ ]*[(][ ]*[+-]{0,1}[ ]*\d{1,2}[ ]*[)][)])",
        R"(\bEI[0-9][ ]*[(][ ]*ST[1-9][ ]*[(][ ]*CO[0-9]{2}[ ]*[)][)])",
        R"(\bST[1-9][ ]*[(]\d{1,6}([ ]*,[ ]*\d{1,6})*[ ]*[)])",
        R"(\bPT[1-9][ ]*[(][ ]*([CAD]|\d{1,6}|[A-Z][A-Z]\d{2}|[A-Z][A-Z])[ ]*[)])",
        R"(\bPT[1-9])",
        R"(\bSTMAX[ ]*[(][ ]*([ASHELPRN]|[VGCI][ ]*[(][ ]*\d{1,6}[ ]*[)])([ ]*,[ ]*([ASHELPRN]|[VGCI][ ]*[(][ ]*\d{1,6}[ ]*[)][ ]*))*[ ]*[)])",
        R"(\bSTMAX[ ]*[(][A-Za-z0-9(), ]*[)])",
        R"(\bGZ)",
        R"(\bVZ)",
        R"(\bV[ ]*[0-9])",
        R"(\bRZ[ ]*[(][ ]*\d{1,2}[ ]*[/][ ]*[<>]{0,1}[=]?[ ]*\d{1,2}[ ]*[)])",
        R"(\bUZ[ ]*[(][ ]*\d{1,2}[ ]*[/][ ]*[<>]{0,1}[=]?[ ]*\d{1,2}[ ]*[/][FA][)])",
        R"(\bUZ[ ]*[(][ ]*\d{1,2}[ ]*[/][ ]*[<>]{0,1}[=]?[ ]*\d{1,2}[ ]*[)])",
        R"(\bUZ[ ]*[(][ ]*\d{1,2}[ ]*[/][ ]*[HN]{0,1}[ ]*[)])",
        R"(\bAG[ ]*[(][ ]*\d{1,3}[ ]*[)])",
    };
    // clang-format on
}

static QStringList keyword_table()
{
    // clang-format off
    return {
        R"(\bSZ\b)",
        R"(\bIF\b)",
        R"(\bTHEN\b)",
        R"(\bRESULT\b)",
        R"(\bAND\b)",
        R"(\bMAX\b)",
        R"(\bMIN\b)",
        R"(\bNOT[ ]*IN\b)",
        R"(\bIN\b)",
        R"(\bSTOP\b)",
        R"(\bRESTART[ ]*([(][ ]*[N,F][ ]*[)])?)",
        R"(\bMESSAGE[ ]*ON\b)",
        R"(\bMESSAGE[ ]*OFF\b)",
        R"(\bMESSAGE[ ]*[(][ ]*.*[)])",
    };
    // clang-format on
}

static QStringList american_table_only()
{
    // clang-format off
    return {
        R"(\bPL37\b)",
        R"(\bCH61\b)",
        R"(\bCH62\b)",
        R"(\bCH63\b)",
        R"(\bTP15\b)",
        R"(\bTP16\b)",
        R"(\b(EN37|ZN37|DN37)\b)",
    };
    // clang-format on
}

static QStringList french_table_only()
{
    // clang-format off
    return {
        R"(\bCH03\b)",
        R"(\bTP02\b)",
        R"(\b(GS|KS|OR|ZS)\b)",
    };
    // clang-format on
}

static QStringList message_table()
{
    // clang-format off
    return {
        R"(\bGZ)",
        R"(\bVZ)",
        R"(\bV[ ]*[0-9])",
        R"(\bCO[0-9]{2})",
        R"(\bST[1-9])",
        R"(\bAG[ ]*[(][ ]*\d{1,3}[ ]*[)])",
        R"(\bAG[ ]*[(][ ]*\d{1,3}[.]{2}\d{1,3}[ ]*[)])",
    };
    // clang-format on
}

system_pattern::system_pattern(int table_form)
    : table_type(table_form)
    , section_patterns(section_table())
    , jeton_patterns(jeton_table(table_form))
    , argument_patterns(argument_table())
    , keyword_patterns(keyword_table())
    , argument_number_patterns{R"(\bAG[ ]*[(][ ]*\d{1,3}[ ]*[)])"}
    , american_patterns(american_table_only())
    , french_patterns(french_table_only())
    , message_patterns(message_table())
{
}
