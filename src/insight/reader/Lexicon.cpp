#include "insight/reader/Lexicon.h"

#include <algorithm>
#include <unordered_map>
#include <utility>
#include <vector>

namespace orlen::AskReader::Lexicon {

namespace {

struct Row {
    Sense sense;
    std::string_view words; ///< phrases, separated by commas
};

/// A phrase that several rows list belongs to the first.
constexpr Row kRows[] = {
    {Sense::filler,
     "a,an,the,my,mine,our,your,i,me,we,you,it,its,this,that,these,those,is,are,was,were,be,been,am,do,does,"
     "did,have,has,had,will,would,of,on,to,for,at,by,and,or,please,pls,hi,hello,hey,thanks,thank,there,so,"
     "just,now,right now,currently,today,tell,show,list,give,find,see,look,get,know,want,wondering,really,"
     "actually,about,any,some,all,much,many,here,then,also,too,only,ever,still,already,exactly,"
     "approximately,roughly,named,called,orlen,with,if,them,they,their,than,one,ones,i've,i'm,i'd,isn't,"
     "aren't,kind,kinds,type,types,sort,like,let,let's,display,name,as,not,don't,doesn't,didn't,well,ok,"
     "okay,us,how,go,goes,lying around,sitting,stored,there's,quick,quickly,again,myself,same"},
    {Sense::what,
     "what,what's,whats,what is,what are,which,where,where is,where are,explain,describe,tell me about,"
     "who,what about,how about"},
    {Sense::howBig,
     "how big,how large,how heavy,how huge,size of,the size,how much space do,how much space does,"
     "how much room do,how much room does,how much storage do,how much storage does,how much do,"
     "how much does,how many gb,how many gigabytes,how many gigs,how many mb,size,how much is in,how many "
     "bytes,weigh"},
    {Sense::howMany, "how many,count,number of,how often,amount of"},
    {Sense::can,
     "can,could,may,should,shall,must,need,is it safe to,is it ok to,is it okay to,safe to,ok to,okay to,"
     "allowed to,possible to,able to,is it fine to,fine to,is it alright to"},
    {Sense::makeRoom, "free up,make room,make space,make room for,make space for,clear "
                      "up,reclaim,regain,gain,save,saved,freed,freeing,"
                      "clear out,get back space,need to free,recover space,win"},
    {Sense::untouched,
     "never touch,never touched,not touch,won't touch,will not touch,don't touch,never move,never delete,"
     "never deletes,never moves,not move,off limits,off-limits,leave alone,left alone,protected,protect,"
     "never remove,never removes,does not touch,doesn't touch,won't move,won't delete,untouched"},
    {Sense::cleanUp,
     "clean-up,clean-ups,cleanup,cleanups,cleaning,cleanings,clean up,cleaned up,cleaned,clean,last clean"},
    {Sense::remove,
     "delete,deleted,deleting,remove,removed,removing,erase,throw away,throw out,get rid,discard,drop,move,"
     "wipe,dump,clear,ditch,bin it,trash it,move to the trash,purge,kill,lose,deletes"},
    {Sense::undo,
     "undo,restore,revert,put back,bring back,get back,recover,undelete,take back,roll back,undone,restored,"
     "reverse"},
    {Sense::safe, "safe,safely,harmless,ok,dangerous,risky"},
    {Sense::review, "review"},
    {Sense::keep, "keep"},
    {Sense::mean, "mean,means,meaning,stand for,stands for,difference between,ratings,rating,rated,meant"},
    {Sense::used, "used,occupied,taken,in use,used up,how full,consumed,filled up so far"},
    {Sense::full,
     "full,fill,fills,filled,filling,fill up,filling up,fills up,running out,run out,runs out,out of space,"
     "no space,no room,low on space,so little space,almost full,nearly full,out of room,out of disk space,"
     "no free space,no more space,no disk space,so full,run out of space,running out of space,"
     "no space left,no free space left,run out of room,running low on space,running low,run out of disk "
     "space,running out of disk space,running out of storage,run out of storage"},
    {Sense::free, "free,available,remaining,left,spare,unused space,unoccupied,leftover,left over"},
    {Sense::total, "total,capacity,altogether,in total,overall,total size,total capacity,total space"},
    {Sense::disk,
     "disk,disks,drive,drives,hard drive,hard disk,ssd,hdd,storage,computer,laptop,machine,pc,volume,"
     "partition,mac,disc,my disk"},
    {Sense::space, "space,room,disk space,storage space,place,drive space,gb of space"},
    {Sense::howMuch, "how much"},
    {Sense::why, "why,how come,what's the reason,what made,reason,what makes,why's"},
    {Sense::when,
     "when,how soon,how long,what date,which date,what day,which day,how many days,how many weeks,"
     "how many months,by when,until when,what month,which month,when's,how long until"},
    {Sense::biggest,
     "biggest,largest,heaviest,top,most space,bulkiest,greatest,largest sized,fattest,longest"},
    {Sense::smallest, "smallest,tiniest,lightest"},
    {Sense::oldest, "oldest,most ancient"},
    {Sense::newest, "newest,most recent,latest,youngest,recent,recently changed"},
    {Sense::grow, "grow,grows,growing,grew,grown,growth,increased,got bigger,gotten bigger,got larger"},
    {Sense::above,
     "over,above,larger than,bigger than,more than,at least,greater than,exceeding,no smaller than,heavier "
     "than"},
    {Sense::below, "under,below,smaller than,less than,at most,fewer than,up to"},
    {Sense::inside, "in,inside,within,from"},
    {Sense::unopened,
     "not opened,haven't opened,not used,haven't used,unopened,never opened,not touched,haven't touched,"
     "unused,not been opened,haven't been opened,i haven't opened,didn't open,have not opened,not accessed,"
     "havent opened,haven't i opened,not looked at,have not used,have i not opened,haven't i used"},
    {Sense::before, "before,older than,earlier than,prior to,more than ago"},
    {Sense::since, "since,newer than,younger than"},
    {Sense::after, "after,later than"},
    {Sense::last, "last,previous,most recent clean-up,past"},
    {Sense::soFar, "so far,all time,all-time,ever freed,until now,up to now,to date,in all,over time,already "
                   "freed,history"},
    {Sense::privacy,
     "upload,uploads,uploaded,uploading,internet,online,network,private,privacy,cloud,telemetry,tracking,"
     "track,"
     "send,sends,sent,sending,spy,spying,leave,leaves,server,servers,phone home,share,shares,shared,"
     "third party,third parties,account,offline"},
    {Sense::general,
     "most,using,use,uses,taking,take,takes,taking up,take up,takes up,hogging,hog,eating,eats,predict,"
     "prediction,forecast,xcode,derived,simulator,simulators,build,code,"
     "backup,"
     "backups,ios,language,languages,translation,large,big,huge,old,mail,attachment,important,copies,same "
     "file,long,scan,result,results,suggest,suggestion,suggestions,help,who are you,folder,folders,directory,"
     "directories,bigger,larger,smaller,older,newer,fast,faster,slow,cost,costs,category,categories,happen,"
     "happens,else,worth,useless,unnecessary,unneeded,junk,garbage,clutter,first,second"},
};

using Map = std::unordered_map<std::string, Entry>;

void addPhrases(Map& map, std::string_view phrases, Entry entry)
{
    while (!phrases.empty()) {
        const std::size_t end = std::min(phrases.find(','), phrases.size());
        map.try_emplace(std::string(phrases.substr(0, end)), entry);
        phrases.remove_prefix(std::min(end + 1, phrases.size()));
    }
}

const Map& entries()
{
    static const Map all = [] {
        Map map;
        for (const Row& row : kRows)
            addPhrases(map, row.words, {row.sense, nullptr});
        for (const Subject& subject : subjects())
            addPhrases(map, subject.words, {Sense::subject, &subject});
        return map;
    }();
    return all;
}

/// A word shorter than this differs from too many others by one letter.
constexpr std::size_t kShortestMistyped = 5;
constexpr std::size_t kShortestMeant = 4;

} // namespace

const Entry* find(const std::string& phrase)
{
    const auto found = entries().find(phrase);
    return found == entries().end() ? nullptr : &found->second;
}

const Entry* findMistyped(std::string_view word)
{
    if (word.size() < kShortestMistyped)
        return nullptr;
    const Entry* only = nullptr;
    for (const auto& [known, entry] : entries()) {
        if (known.size() < kShortestMeant || !isOneLetterApart(word, known))
            continue;
        if (only != nullptr && (only->sense != entry.sense || only->subject != entry.subject))
            return nullptr;
        only = &entry;
    }
    return only;
}

bool isOneLetterApart(std::string_view a, std::string_view b)
{
    if (a.size() > b.size())
        std::swap(a, b);
    if (b.size() - a.size() > 1)
        return false;
    std::size_t at = 0;
    while (at < a.size() && a[at] == b[at])
        ++at;
    if (a.size() < b.size())
        return a.substr(at) == b.substr(at + 1);
    if (at == a.size())
        return false;
    if (a.substr(at + 1) == b.substr(at + 1))
        return true;
    return at + 1 < a.size() && a[at] == b[at + 1] && a[at + 1] == b[at] &&
           a.substr(at + 2) == b.substr(at + 2);
}

} // namespace orlen::AskReader::Lexicon
