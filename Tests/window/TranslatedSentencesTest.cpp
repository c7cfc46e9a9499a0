// Sentences that are put together from parts, as a person reads them in each language.

#include "InLanguage.h"
#include "words/EditForecast.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace kx {

namespace {

using enum UnitParameter;

// The forecasts for edits of each kind, in the installed language.
std::vector<std::string> forecasts() {
    const CommandTarget unit{.unitIsSelected = true,
                             .address = "192.168.1.10",
                             .hardwareAddress = "00:1A:2B:3C:4D:5E",
                             .newSerialNumberIsTaken = true};
    std::vector<std::string> texts;
    for (const auto& [parameter, typed] :
         std::vector<std::pair<UnitParameter, std::string>>{{internalMACAddress, "001A2B3C4D5E"},
                                                            {devicePortNumber, "10000x"},
                                                            {destinationPortNumber, "70000"},
                                                            {destinationPortNumber, "port"},
                                                            {destinationIPAddress, "host"},
                                                            {serialNumber, "010203040506"},
                                                            {unitID, "7"}}) {
        texts.push_back(forecastOfEdit(editOfParameter(parameter, typed), unit));
    }
    return texts;
}

} // namespace

TEST(TranslatedSentences, AForecastReadsWellInGerman) {
    const InLanguage german("de");
    EXPECT_EQ(forecasts(),
              (std::vector<std::string>{
                  "„Anwenden“ sendet ^^IdM001A2B3C4D5E: interne MAC-Adresse 00:1A:2B:3C:4D:5E.",
                  "„Anwenden“ sendet ^^IdP2710: Geräteport 10000, denn so wird „10000x“ gelesen.",
                  "„Anwenden“ sendet ^^IdT0DC0: Zielport 3520, denn 70000 liegt außerhalb von 3520 "
                  "bis 3523.",
                  "„Anwenden“ sendet ^^IdT0DC0: Zielport 3520, denn „port“ beginnt nicht mit einer "
                  "Zahl.",
                  "„Anwenden“ sendet ^^IdD00000000: Ziel-IP-Adresse 0.0.0.0, denn „host“ ist keine "
                  "IPv4-Adresse.",
                  "„Anwenden“ sendet ^^IdS010203040506: Seriennummer 01 02 03 04 05 06, die ein "
                  "anderes Gerät hat.",
                  "„Anwenden“ sendet ^^IdU000000000007: Geräte-ID 7.",
              }));
}

TEST(TranslatedSentences, AForecastReadsWellInSpanish) {
    const InLanguage spanish("es");
    EXPECT_EQ(forecasts(),
              (std::vector<std::string>{
                  "«Aplicar» envía ^^IdM001A2B3C4D5E: dirección MAC interna 00:1A:2B:3C:4D:5E.",
                  "«Aplicar» envía ^^IdP2710: puerto de la unidad 10000, porque así se lee "
                  "«10000x».",
                  "«Aplicar» envía ^^IdT0DC0: puerto de destino 3520, porque 70000 no está entre "
                  "3520 y 3523.",
                  "«Aplicar» envía ^^IdT0DC0: puerto de destino 3520, porque «port» no empieza por "
                  "un número.",
                  "«Aplicar» envía ^^IdD00000000: dirección IP de destino 0.0.0.0, porque «host» "
                  "no es una dirección IPv4.",
                  "«Aplicar» envía ^^IdS010203040506: número de serie 01 02 03 04 05 06, que tiene "
                  "otra unidad.",
                  "«Aplicar» envía ^^IdU000000000007: identificador de unidad 7.",
              }));
}

TEST(TranslatedSentences, AForecastReadsWellInFrench) {
    const InLanguage french("fr");
    EXPECT_EQ(forecasts(),
              (std::vector<std::string>{
                  "«\u00A0Appliquer\u00A0» envoie ^^IdM001A2B3C4D5E\u00A0: adresse MAC interne "
                  "00:1A:2B:3C:4D:5E.",
                  "«\u00A0Appliquer\u00A0» envoie ^^IdP2710\u00A0: port de l’unité 10000, car "
                  "«\u00A010000x\u00A0» est lu ainsi.",
                  "«\u00A0Appliquer\u00A0» envoie ^^IdT0DC0\u00A0: port de destination 3520, car "
                  "70000 n’est pas compris entre 3520 et 3523.",
                  "«\u00A0Appliquer\u00A0» envoie ^^IdT0DC0\u00A0: port de destination 3520, car "
                  "«\u00A0port\u00A0» ne commence pas par un nombre.",
                  "«\u00A0Appliquer\u00A0» envoie ^^IdD00000000\u00A0: adresse IP de destination "
                  "0.0.0.0, car «\u00A0host\u00A0» n’est pas une adresse IPv4.",
                  "«\u00A0Appliquer\u00A0» envoie ^^IdS010203040506\u00A0: numéro de série 01 02 "
                  "03 04 05 06, qui est celui d’une autre unité.",
                  "«\u00A0Appliquer\u00A0» envoie ^^IdU000000000007\u00A0: identifiant d’unité 7.",
              }));
}

TEST(TranslatedSentences, AForecastReadsWellInJapanese) {
    const InLanguage japanese("ja");
    EXPECT_EQ(forecasts(),
              (std::vector<std::string>{
                  "「適用」を押すと ^^IdM001A2B3C4D5E を送信します: 内部 MAC アドレス "
                  "00:1A:2B:3C:4D:5E。",
                  "「適用」を押すと ^^IdP2710 を送信します: ユニットのポート "
                  "10000（「10000x」はこのように読み取られるため）。",
                  "「適用」を押すと ^^IdT0DC0 を送信します: 宛先ポート 3520（70000 は 3520～3523 "
                  "の範囲外のため）。",
                  "「適用」を押すと ^^IdT0DC0 を送信します: 宛先ポート "
                  "3520（「port」は数字で始まっていないため）。",
                  "「適用」を押すと ^^IdD00000000 を送信します: 宛先 IP アドレス "
                  "0.0.0.0（「host」は IPv4 アドレスではないため）。",
                  "「適用」を押すと ^^IdS010203040506 を送信します: シリアル番号 01 02 03 04 05 "
                  "06（別のユニットが使用しています）。",
                  "「適用」を押すと ^^IdU000000000007 を送信します: ユニット ID 7。",
              }));
}

} // namespace kx
