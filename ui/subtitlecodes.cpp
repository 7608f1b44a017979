// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "ui/subtitlecodes.h"

#include "catalogue/listnumbers.h"

using namespace Qt::Literals::StringLiterals;

const QString subtitleTypeIso6392B = u"ISO639-2 (B)"_s;
const QString subtitleTypeIso6392T = u"ISO639-2 (T)"_s;
const QString subtitleTypeIso6393 = u"ISO639-3"_s;
const QString subtitleTypeIndex = u"Index"_s;

namespace {

// The bibliographic codes, without the range reserved for local use. Two are the devices' own:
// Kimbundu is "kim", Serbian the withdrawn "scc".
constexpr char bibliographicCodes[]
    = "aar abk ace ach ada ady afa afh afr ain aka akk alb ale alg alt amh ang anp apa ara "
      "arc arg arm arn arp art arw asm ast ath aus ava ave awa aym aze bad bai bak bal bam "
      "ban baq bas bat bej bel bem ben ber bho bih bik bin bis bla bnt bos bra bre btk bua "
      "bug bul bur byn cad cai car cat cau ceb cel cha chb che chg chi chk chm chn cho chp "
      "chr chu chv chy cmc cnr cop cor cos cpe cpf cpp cre crh crp csb cus cze dak dan dar "
      "day del den dgr din div doi dra dsb dua dum dut dyu dzo efi egy eka elx eng enm epo "
      "est ewe ewo fan fao fat fij fil fin fiu fon fre frm fro frr frs fry ful fur gaa gay "
      "gba gem geo ger gez gil gla gle glg glv gmh goh gon gor got grb grc gre grn gsw guj "
      "gwi hai hat hau haw heb her hil him hin hit hmn hmo hrv hsb hun hup iba ibo ice ido "
      "iii ijo iku ile ilo ina inc ind ine inh ipk ira iro ita jav jbo jpn jpr jrb kaa kab "
      "kac kal kam kan kar kas kau kaw kaz kbd kha khi khm kho kik kim kin kir kok kom kon "
      "kor kos kpe krc krl kro kru kua kum kur kut lad lah lam lao lat lav lez lim lin lit "
      "lol loz ltz lua lub lug lui lun luo lus mac mad mag mah mai mak mal man mao map mar "
      "mas may mdf mdr men mga mic min mis mkh mlg mlt mnc mni mno moh mol mon mos mul mun "
      "mus mwl mwr myn myv nah nai nap nau nav nbl nde ndo nds nep new nia nic niu nno nob "
      "nog non nor nqo nso nub nwc nya nym nyn nyo nzi oci oji ori orm osa oss ota oto paa "
      "pag pal pam pan pap pau peo per phi phn pli pol pon por pra pro pus que raj rap rar "
      "roa roh rom rum run rup rus sad sag sah sai sal sam san sas sat scc scn sco sel sem "
      "sga sgn shn shp sid sin sio sit sla slo slv sma sme smi smj smn smo sms sna snd snk "
      "sog som son sot spa srd srn srr ssa ssw suk sun sus sux swa swe syc syr tah tai tam "
      "tat tel tem ter tet tgk tgl tha tib tig tir tiv tkl tlh tli tmh tog ton tpi tsi tsn "
      "tso tuk tum tup tur tut tvl twi tyv udm uga uig ukr umb und urd uzb vai ven vie vol "
      "vot wak wal war was wel wen wln wol xal xho yao yap yid yor ypk zap zbl zen zgh zha "
      "znd zul zun zxx zza";

struct Substitution
{
    const char *bibliographic;
    const char *terminology;
};

// clang-format off
constexpr Substitution substitutions[] = {
    {"alb", "sqi"},
    {"arm", "hye"},
    {"baq", "eus"},
    {"bur", "mya"},
    {"chi", "zho"},
    {"cze", "ces"},
    {"dut", "nld"},
    {"fre", "fra"},
    {"geo", "kat"},
    {"ger", "deu"},
    {"gre", "ell"},
    {"ice", "isl"},
    {"kim", "kmb"},
    {"mac", "mkd"},
    {"mao", "mri"},
    {"may", "msa"},
    {"per", "fas"},
    {"rum", "ron"},
    {"scc", "srp"},
    {"slo", "slk"},
    {"tib", "bod"},
    {"wel", "cym"},
};
// clang-format on

QStringList bibliographicList()
{
    return QString::fromLatin1(bibliographicCodes).split(u' ');
}

/// In the places of the bibliographic codes, so not in alphabetical order.
QStringList terminologyList()
{
    QStringList codes = bibliographicList();
    for (const Substitution &substitution : substitutions) {
        codes.replace(codes.indexOf(QLatin1StringView(substitution.bibliographic)),
                      QString::fromLatin1(substitution.terminology));
    }
    return codes;
}

QStringList iso6393List()
{
    QStringList codes = terminologyList();
    codes.insert(codes.indexOf("heb"_L1), u"hbs"_s);
    codes.insert(codes.indexOf("roa"_L1), u"rcf"_s);
    codes.removeOne("ypk"_L1);
    return codes;
}

} // namespace

QStringList subtitleValues(const QString &type)
{
    static const QStringList bibliographic = bibliographicList();
    static const QStringList terminology = terminologyList();
    static const QStringList iso6393 = iso6393List();

    if (type == subtitleTypeIso6392B)
        return bibliographic;
    if (type == subtitleTypeIso6392T)
        return terminology;
    if (type == subtitleTypeIso6393)
        return iso6393;
    if (type == subtitleTypeIndex)
        return numberTexts({0, 127});
    return {};
}
