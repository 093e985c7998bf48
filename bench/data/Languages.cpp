#include "data/Languages.h"

#include <algorithm>
#include <stdexcept>
#include <string>

namespace orvanta::bench {

namespace {

constexpr Language latin(std::string_view name, std::u32string_view accented) {
  return {name, U'a', U'z', accented};
}

constexpr Language kLanguages[] = {
    latin("en", U""),
    latin("fr", U"éèêëàâçîïôœùûÉÀ’"),
    latin("de", U"äöüßÄÖÜ"),
    latin("es", U"áéíñóúü¿¡"),
    latin("it", U"àèéìòù’"),
    latin("pt-BR", U"ãõáéíóúâêôç"),
    latin("pt-PT", U"ãõáéíóúâêôàç"),
    latin("nl", U"ëïéèü"),
    latin("sv", U"åäöÅÄÖ"),
    latin("da", U"æøåÆØÅ"),
    latin("nb", U"æøåÆØÅ"),
    latin("fi", U"äöå"),
    latin("is", U"áðéíóúýþæö"),
    latin("pl", U"ąćęłńóśźż"),
    latin("cs", U"áčďéěíňóřšťúůýž"),
    latin("sk", U"áäčďéíĺľňóôŕšťúýž"),
    latin("hu", U"áéíóöőúüű"),
    latin("ro", U"ăâîșț"),
    latin("hr", U"čćđšž"),
    latin("sl", U"čšž"),
    latin("et", U"äõöüšž"),
    latin("lv", U"āčēģīķļņšūž"),
    latin("lt", U"ąčęėįšųūž"),
    latin("tr", U"çğıİöşü"),
    latin("vi", U"ăâđêôơưạảấầẩẫậắằẳẵặẹẻẽếềểễệỉịọỏốồổỗộớờởỡợụủứừửữựỳỵỷỹ"),
    latin("id", U"é"),
    latin("ms", U"é"),
    {"ru", U'а', U'я'},
    {"uk", U'а', U'я', U"ґєії’"},
    {"bg", U'а', U'я'},
    {"el", U'α', U'ω', U"άέήίόύώ"},
    {"ar", U'ء', U'ي'},
    {"he", U'א', U'ת'},
    {"fa", U'ء', U'ي', U"پچژگک"},
    {"hi", U'क', U'ह', U"ािीुूेैोौ्"},
    {"th", U'ก', U'ฮ', U"ะัาิีึืุูเแโใไ่้", false},
    {"ja", U'ぁ', U'ん', U"日本語設定変更画面確認保存削除検索", false},
    {"ko", U'가', U'힣'},
    {"zh-Hans", U'一', U'龥', U"", false},
    {"zh-Hant", U'一', U'龥', U"", false},
};

}  // namespace

std::span<const Language> shippedLanguages() {
  return kLanguages;
}

const Language& languageNamed(std::string_view name) {
  const auto* found = std::find_if(std::begin(kLanguages), std::end(kLanguages),
                                   [&](const Language& language) { return language.name == name; });
  if (found == std::end(kLanguages)) {
    throw std::logic_error("no such language: " + std::string(name));
  }
  return *found;
}

}  // namespace orvanta::bench
