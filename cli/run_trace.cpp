#include "run_trace.h"

#include "output_device.h"

#include <QJsonDocument>
#include <QJsonObject>

bool run_trace::open(const QString& path)
{
    file.setFileName(path);
    if (is_output_device(path)) return file.open(device_mode(path));
    return file.open(QIODevice::WriteOnly | QIODevice::Truncate);
}

void run_trace::add_bet(player_names player, const QString& jeton, int amount, int line)
{
    pending_of(player).bets.append(
        QJsonObject{{"jeton", jeton}, {"amount", amount}, {"line", line}});
}

void run_trace::add_action(player_names player, const QString& action)
{
    pending_of(player).actions.append(action);
}

void run_trace::add_message(player_names player, const QStringList& lines)
{
    pending_of(player).messages.append(QJsonArray::fromStringList(lines));
}

void run_trace::drop_bets(player_names player)
{
    pending_of(player).bets = {};
}

void run_trace::write_coup(qint64 coup,
                           int number,
                           player_names player,
                           const coup_figures& figures)
{
    QJsonArray prison;
    for (const jetons::jeton_names chance : figures.prison)
        prison.append(jetons::name(chance));
    QJsonObject object = take_pending(coup, player);
    object.insert("number", number);
    object.insert("seeded", figures.seeded);
    object.insert("score", figures.score);
    object.insert("credit", figures.credit);
    object.insert("prison", prison);
    write_line(object);
}

void run_trace::write_hand_change(qint64 coup, player_names player)
{
    write_line({{"coup", coup}, {"number", number_code::hand_change}, {"player", player + 1}});
}

void run_trace::write_closing(qint64 coup, player_names player)
{
    QJsonObject object = take_pending(coup, player);
    object.insert("number", QJsonValue::Null);
    write_line(object);
}

bool run_trace::close()
{
    if (!file.flush()) write_failed = true;
    file.close();
    return !write_failed;
}

QJsonObject run_trace::take_pending(qint64 coup, player_names player)
{
    pending& own = pending_of(player);
    const QJsonObject object = {{"coup", coup},
                                {"player", player + 1},
                                {"bets", own.bets},
                                {"actions", own.actions},
                                {"messages", own.messages}};
    own = {};
    return object;
}

void run_trace::write_line(const QJsonObject& object)
{
    const QByteArray line = QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
    if (file.write(line) != line.size()) write_failed = true;
}
