#include "LanguageIds.h"

#include <QLocale>
#include <QStringList>
#include <algorithm>
#include <iterator>

namespace {
struct Language
{
    const char *name;
    LanguageId id;
};

// The variant that stands for a language comes first.
constexpr Language languages[] = {
    {"af_ZA", 0x0436}, {"am_ET", 0x045E}, {"ar_SA", 0x0401}, {"ar_AE", 0x3801}, {"ar_BH", 0x3C01},
    {"ar_DZ", 0x1401}, {"ar_EG", 0x0C01}, {"ar_IQ", 0x0801}, {"ar_JO", 0x2C01}, {"ar_KW", 0x3401},
    {"ar_LB", 0x3001}, {"ar_LY", 0x1001}, {"ar_MA", 0x1801}, {"ar_OM", 0x2001}, {"ar_QA", 0x4001},
    {"ar_SY", 0x2801}, {"ar_TN", 0x1C01}, {"ar_YE", 0x2401}, {"az_AZ", 0x042C}, {"be_BY", 0x0423},
    {"bg_BG", 0x0402}, {"bn_IN", 0x0445}, {"bn_BD", 0x0845}, {"br_FR", 0x047E}, {"bs_BA", 0x141A},
    {"ca_ES", 0x0403}, {"cs_CZ", 0x0405}, {"cy_GB", 0x0452}, {"da_DK", 0x0406}, {"de_DE", 0x0407},
    {"de_CH", 0x0807}, {"de_AT", 0x0C07}, {"de_LU", 0x1007}, {"de_LI", 0x1407}, {"el_GR", 0x0408},
    {"en_US", 0x0409}, {"en_GB", 0x0809}, {"en_AU", 0x0C09}, {"en_CA", 0x1009}, {"en_NZ", 0x1409},
    {"en_IE", 0x1809}, {"en_ZA", 0x1C09}, {"en_JM", 0x2009}, {"en_BZ", 0x2809}, {"en_TT", 0x2C09},
    {"en_ZW", 0x3009}, {"en_PH", 0x3409}, {"en_IN", 0x4009}, {"en_MY", 0x4409}, {"en_SG", 0x4809},
    {"es_ES", 0x0C0A}, {"es_MX", 0x080A}, {"es_GT", 0x100A}, {"es_CR", 0x140A}, {"es_PA", 0x180A},
    {"es_DO", 0x1C0A}, {"es_VE", 0x200A}, {"es_CO", 0x240A}, {"es_PE", 0x280A}, {"es_AR", 0x2C0A},
    {"es_EC", 0x300A}, {"es_CL", 0x340A}, {"es_UY", 0x380A}, {"es_PY", 0x3C0A}, {"es_BO", 0x400A},
    {"es_SV", 0x440A}, {"es_HN", 0x480A}, {"es_NI", 0x4C0A}, {"es_PR", 0x500A}, {"es_US", 0x540A},
    {"et_EE", 0x0425}, {"eu_ES", 0x042D}, {"fa_IR", 0x0429}, {"fi_FI", 0x040B}, {"fil_PH", 0x0464},
    {"fo_FO", 0x0438}, {"fr_FR", 0x040C}, {"fr_BE", 0x080C}, {"fr_CA", 0x0C0C}, {"fr_CH", 0x100C},
    {"fr_LU", 0x140C}, {"fr_MC", 0x180C}, {"fy_NL", 0x0462}, {"ga_IE", 0x083C}, {"gl_ES", 0x0456},
    {"gu_IN", 0x0447}, {"he_IL", 0x040D}, {"hi_IN", 0x0439}, {"hr_HR", 0x041A}, {"hr_BA", 0x101A},
    {"hu_HU", 0x040E}, {"hy_AM", 0x042B}, {"id_ID", 0x0421}, {"is_IS", 0x040F}, {"it_IT", 0x0410},
    {"it_CH", 0x0810}, {"ja_JP", 0x0411}, {"ka_GE", 0x0437}, {"kk_KZ", 0x043F}, {"km_KH", 0x0453},
    {"kn_IN", 0x044B}, {"ko_KR", 0x0412}, {"ky_KG", 0x0440}, {"lb_LU", 0x046E}, {"lo_LA", 0x0454},
    {"lt_LT", 0x0427}, {"lv_LV", 0x0426}, {"mk_MK", 0x042F}, {"ml_IN", 0x044C}, {"mn_MN", 0x0450},
    {"mr_IN", 0x044E}, {"ms_MY", 0x043E}, {"ms_BN", 0x083E}, {"mt_MT", 0x043A}, {"nb_NO", 0x0414},
    {"ne_NP", 0x0461}, {"nl_NL", 0x0413}, {"nl_BE", 0x0813}, {"nn_NO", 0x0814}, {"pa_IN", 0x0446},
    {"pl_PL", 0x0415}, {"pt_BR", 0x0416}, {"pt_PT", 0x0816}, {"rm_CH", 0x0417}, {"ro_RO", 0x0418},
    {"ru_RU", 0x0419}, {"si_LK", 0x045B}, {"sk_SK", 0x041B}, {"sl_SI", 0x0424}, {"sq_AL", 0x041C},
    {"sr_RS", 0x281A}, {"sv_SE", 0x041D}, {"sv_FI", 0x081D}, {"sw_KE", 0x0441}, {"ta_IN", 0x0449},
    {"te_IN", 0x044A}, {"th_TH", 0x041E}, {"tr_TR", 0x041F}, {"tt_RU", 0x0444}, {"uk_UA", 0x0422},
    {"ur_PK", 0x0420}, {"uz_UZ", 0x0443}, {"vi_VN", 0x042A}, {"zh_CN", 0x0804}, {"zh_TW", 0x0404},
    {"zh_HK", 0x0C04}, {"zh_SG", 0x1004}, {"zh_MO", 0x1404}, {"zu_ZA", 0x0435},
};

// The first entry whose name begins so.
LanguageId idOf(const QString &start)
{
    const auto found =
        std::find_if(std::begin(languages), std::end(languages), [&](const Language &language) {
            return QLatin1String(language.name).startsWith(start);
        });
    return found == std::end(languages) ? 0 : found->id;
}
} // namespace

LanguageId languageId(const QLocale &locale)
{
    // The system may be set to show texts in another language than that of numbers and dates.
    const QString language = locale.uiLanguages().value(0);
    const QString name = QLocale(language).name();
    if (name == QLatin1String("C"))
        return idOf(QStringLiteral("en_US"));
    const LanguageId exact = idOf(name);
    return exact ? exact : idOf(name.section(QLatin1Char('_'), 0, 0) + QLatin1Char('_'));
}
