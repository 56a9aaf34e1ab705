// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/web/page_words.h"

#include <array>

namespace nubivane {

namespace {

struct Row {
    const char* language;
    const char* periods;
    const char* previous;
    const char* next;
    const char* play;
    const char* pause;
    const char* map;
};

// English first: it stands in for the languages that are missing.
constexpr std::array rows = {
    Row{"en", "Forecast periods", "Previous", "Next", "Play", "Pause", "Map"},
    Row{"ar", "فترات التوقعات", "السابق", "التالي", "تشغيل", "إيقاف مؤقت", "خريطة"},
    Row{"bg", "Периоди на прогнозата", "Назад", "Напред", "Пускане", "Пауза", "Карта"},
    Row{"ca", "Períodes de la previsió", "Anterior", "Següent", "Reprodueix", "Pausa", "Mapa"},
    Row{"cs", "Období předpovědi", "Předchozí", "Další", "Přehrát", "Pozastavit", "Mapa"},
    Row{"da", "Prognoseperioder", "Forrige", "Næste", "Afspil", "Pause", "Kort"},
    Row{"de", "Zeiträume der Vorhersage", "Zurück", "Weiter", "Abspielen", "Anhalten", "Karte"},
    Row{"el", "Περίοδοι πρόγνωσης", "Προηγούμενο", "Επόμενο", "Αναπαραγωγή", "Παύση", "Χάρτης"},
    Row{"es", "Períodos del pronóstico", "Anterior", "Siguiente", "Reproducir", "Pausa", "Mapa"},
    Row{"fi", "Ennustejaksot", "Edellinen", "Seuraava", "Toista", "Tauko", "Kartta"},
    Row{"fr", "Périodes de prévision", "Précédent", "Suivant", "Lire", "Pause", "Carte"},
    Row{"he", "תקופות התחזית", "הקודם", "הבא", "הפעלה", "השהיה", "מפה"},
    Row{"hr", "Razdoblja prognoze", "Prethodno", "Sljedeće", "Pokreni", "Pauza", "Karta"},
    Row{"hu", "Előrejelzési időszakok", "Előző", "Következő", "Lejátszás", "Szünet", "Térkép"},
    Row{"it", "Periodi della previsione", "Precedente", "Successivo", "Avvia", "Pausa", "Mappa"},
    Row{"nb", "Varselperioder", "Forrige", "Neste", "Spill av", "Pause", "Kart"},
    Row{"nl", "Verwachtingsperioden", "Vorige", "Volgende", "Afspelen", "Pauze", "Kaart"},
    Row{"no", "Varselperioder", "Forrige", "Neste", "Spill av", "Pause", "Kart"},
    Row{"pl", "Okresy prognozy", "Poprzedni", "Następny", "Odtwórz", "Wstrzymaj", "Mapa"},
    Row{"pt", "Períodos da previsão", "Anterior", "Seguinte", "Reproduzir", "Pausa", "Mapa"},
    Row{"ro", "Perioadele prognozei", "Înapoi", "Înainte", "Redare", "Pauză", "Hartă"},
    Row{"ru", "Периоды прогноза", "Назад", "Вперёд", "Пуск", "Пауза", "Карта"},
    Row{"sk", "Obdobia predpovede", "Predchádzajúce", "Ďalšie", "Prehrať", "Pozastaviť", "Mapa"},
    Row{"sl", "Obdobja napovedi", "Nazaj", "Naprej", "Predvajaj", "Premor", "Zemljevid"},
    Row{"sv", "Prognosperioder", "Föregående", "Nästa", "Spela upp", "Pausa", "Karta"},
    Row{"tr", "Tahmin dönemleri", "Önceki", "Sonraki", "Oynat", "Duraklat", "Harita"},
    Row{"uk", "Періоди прогнозу", "Назад", "Далі", "Пуск", "Пауза", "Карта"},
};

}  // namespace

PageWords pageWords(const QString& language) {
    const QString primary = language.section(QLatin1Char('-'), 0, 0).toLower();
    const Row* found = nullptr;
    for (const Row& row : rows) {
        if (primary == QLatin1String(row.language)) {
            found = &row;
        }
    }
    const Row& row = found ? *found : rows.front();
    return {
        .periods = QString::fromUtf8(row.periods),
        .previous = QString::fromUtf8(row.previous),
        .next = QString::fromUtf8(row.next),
        .play = QString::fromUtf8(row.play),
        .pause = QString::fromUtf8(row.pause),
        .map = QString::fromUtf8(row.map),
        .foreign = !found,
    };
}

}  // namespace nubivane
