#include "model/SensitiveWords.h"

#include <algorithm>
#include <array>
#include <string>
#include <unordered_set>

// Broad where a word means little else, and without what is an everyday word of another language ("tasse"):
// names of all languages are compared with all of them. Accents are often left out in file names.
namespace orlen::SensitiveWords {

namespace {

// clang-format off
constexpr auto kGerman = std::to_array<std::string_view>({
    "rechnung", "rechnungen", "steuer", "steuern", "steuererklärung", "steuererklaerung",
    "steuerbescheid", "vertrag", "verträge", "vertraege", "mietvertrag", "arbeitsvertrag",
    "kaufvertrag", "reisepass", "personalausweis", "führerschein", "fuehrerschein", "versicherung",
    "versicherungen", "hypothek", "gehaltsabrechnung", "lohnabrechnung", "kontoauszug",
    "kontoauszüge", "kontoauszuege", "lebenslauf", "testament", "geburtsurkunde", "urkunde",
    "urkunden", "bescheinigung", "zeugnis", "zeugnisse", "vollmacht", "quittung", "quittungen",
    "arztbrief", "rentenbescheid", "kündigung", "kuendigung"
});

constexpr auto kFrench = std::to_array<std::string_view>({
    "facture", "factures", "impôt", "impôts", "impot", "impots", "fiscal", "fiscale", "contrat",
    "contrats", "passeport", "passeports", "assurance", "assurances", "mutuelle", "hypothèque",
    "hypotheque", "attestation", "attestations", "quittance", "quittances", "salaire", "salaires",
    "relevé", "relevés", "releve", "releves", "ordonnance", "ordonnances", "diplôme", "diplômes",
    "diplome", "diplomes", "certificat", "certificats", "naissance", "garanties", "notaire",
    "médical", "médicale", "medicale", "justificatif", "justificatifs"
});

constexpr auto kSpanish = std::to_array<std::string_view>({
    "factura", "facturas", "impuesto", "impuestos", "tributaria", "tributario", "contrato",
    "contratos", "acuerdo", "acuerdos", "convenio", "convenios", "pasaporte", "pasaportes",
    "póliza", "poliza", "pólizas", "polizas", "hipoteca", "hipotecas", "arrendamiento",
    "arrendamientos", "alquiler", "alquileres", "nómina", "nomina", "nóminas", "nominas", "salario",
    "salarios", "sueldo", "finiquito", "bancario", "bancaria", "bancarios", "bancarias", "extracto",
    "extractos", "currículum", "curriculum", "currículo", "curriculo", "testamento", "testamentos",
    "notarial", "notaría", "notaria", "certificado", "certificados", "licencia",
    "licencias", "visado", "visados", "médico", "medico", "médica", "medica", "médicos", "medicos",
    "médicas", "medicas", "recibo", "recibos", "diploma", "diplomas", "nacimiento", "garantía",
    "garantia", "garantías", "garantias", "declaración", "declaracion", "pensión", "pension",
    "pensiones", "jubilación", "jubilacion", "juzgado", "juzgados", "denuncia", "denuncias",
    "policía", "policia"
});

constexpr auto kItalian = std::to_array<std::string_view>({
    "fattura", "fatture", "contratto", "contratti", "passaporto", "passaporti", "assicurazione",
    "assicurazioni", "polizza", "polizze", "affitto", "affitti", "locazione", "stipendio",
    "stipendi", "cedolino", "cedolini", "testamento", "rogito", "rogiti", "certificato",
    "certificati", "patente", "referto", "referti", "ricevuta", "ricevute", "scontrino",
    "scontrini", "laurea", "nascita", "garanzia", "garanzie", "pensione", "tribunale", "denuncia",
    "denunce", "fiscale", "fiscali", "imposte", "tributi", "bolletta", "bollette", "bonifico", "bonifici", "notaio",
    "notarile"
});

constexpr auto kPortuguese = std::to_array<std::string_view>({
    "fatura", "faturas", "imposto", "impostos", "irpf", "contrato", "contratos", "acordo",
    "acordos", "convênio", "convenio", "passaporte", "passaportes", "apólice", "apolice",
    "apólices", "apolices", "hipoteca", "hipotecas", "aluguel", "aluguéis", "alugueis", "locação",
    "locacao", "holerite", "holerites", "contracheque", "contracheques", "salário", "salario",
    "salários", "salarios", "rescisão", "rescisao", "extrato", "extratos", "boleto", "boletos",
    "currículo", "curriculo", "currículos", "curriculos", "testamento", "testamentos",
    "procuração", "procuracao", "certidão", "certidao", "certidões", "certidoes",
    "certificado", "certificados", "licença", "licenca", "licenças", "licencas", "médico", "medico",
    "médica", "medica", "receituário", "receituario", "atestado", "atestados", "recibo", "recibos",
    "diploma", "diplomas", "garantia", "garantias", "aposentadoria", "pensão",
    "pensao"
});

constexpr auto kPolish = std::to_array<std::string_view>({
    "faktura", "faktury", "rachunek", "rachunki", "umowa", "umowy", "paszport", "paszporty",
    "polisa", "polisy", "ubezpieczenie", "ubezpieczenia", "podatkowy", "podatkowe", "hipoteka",
    "wypłata", "wyplata", "wynagrodzenie", "wyciąg", "wyciag", "życiorys", "zyciorys", "testament",
    "certyfikat", "certyfikaty", "świadectwo", "swiadectwo", "zaświadczenie", "zaswiadczenie",
    "podatek", "podatki", "recepta", "paragony", "dyplom", "gwarancja", "emerytura", "pełnomocnictwo",
    "pelnomocnictwo", "zeznanie", "wyrok", "notarialny"
});

constexpr auto kArabic = std::to_array<std::string_view>({
    "فاتورة", "فاتوره", "الفاتورة", "فواتير", "ضريبة", "ضريبه", "ضرائب", "الضرائب", "ضريبي", "عقد",
    "العقد", "عقود", "اتفاقية", "اتفاقيه", "إتفاقية", "جواز", "جوازات", "تأمين", "تامين", "إيجار",
    "ايجار", "راتب", "الراتب", "رواتب", "مصرفي", "بنكي", "وصية", "شهادة", "شهاده", "شهادات", "رخصة",
    "رخصه", "تأشيرة", "تاشيرة", "طبي", "طبية", "إيصال", "ايصال", "إيصالات", "معاش", "تقاعد",
    "محكمة", "توكيل", "إقرار", "اقرار"
});

constexpr auto kJapanese = std::to_array<std::string_view>({
    "請求書", "領収書", "領収証", "契約書", "誓約書", "同意書", "覚書", "納税", "税金", "確定申告", "申告書", "源泉徴収", "年末調整",
    "パスポート", "旅券", "在留カード", "保険証", "年金手帳", "ねんきん", "住宅ローン", "賃貸借", "給与明細", "給料明細", "預金通帳", "残高証明",
    "履歴書", "職務経歴書", "遺言", "権利証", "登記", "証明書", "免許証", "診断書", "健康診断", "処方箋", "卒業証書", "出生届", "住民票",
    "戸籍", "マイナンバー"
});

constexpr auto kChinese = std::to_array<std::string_view>({
    "发票", "收据", "合同", "协议书", "契约书", "护照", "签证", "身份证", "户口本", "户口簿", "驾驶证", "驾照", "保险单", "保单", "房贷",
    "按揭", "租赁", "租房合同", "工资条", "工资单", "薪资", "银行流水", "对账单", "账单", "简历", "遗嘱", "房产证", "不动产", "证书",
    "营业执照", "经营许可证", "病历", "体检报告", "处方", "毕业证", "学位证", "结婚证", "出生证明", "出生医学证明", "保修", "纳税", "完税",
    "报税", "个税", "税务", "养老金", "社保", "公积金", "判决书", "起诉书", "公证", "委托书", "授权书", "借条", "欠条"
});
// clang-format on

/// Of the languages that part words by spaces.
const std::unordered_set<std::string_view>& wholeWords()
{
    static const std::unordered_set<std::string_view> words = [] {
        std::unordered_set<std::string_view> all;
        all.insert(kGerman.begin(), kGerman.end());
        all.insert(kFrench.begin(), kFrench.end());
        all.insert(kSpanish.begin(), kSpanish.end());
        all.insert(kItalian.begin(), kItalian.end());
        all.insert(kPortuguese.begin(), kPortuguese.end());
        all.insert(kPolish.begin(), kPolish.end());
        all.insert(kArabic.begin(), kArabic.end());
        return all;
    }();
    return words;
}

bool isAscii(std::string_view text)
{
    return std::ranges::all_of(text, [](char c) { return static_cast<unsigned char>(c) < 0x80U; });
}

} // namespace

bool contains(std::string_view word)
{
    return wholeWords().contains(word);
}

bool areIn(std::string_view name)
{
    if (isAscii(name))
        return false;
    const auto isIn = [&](std::string_view word) { return name.find(word) != std::string_view::npos; };
    return std::ranges::any_of(kJapanese, isIn) || std::ranges::any_of(kChinese, isIn);
}

} // namespace orlen::SensitiveWords
